#pragma once

#include "tally.h"

#include <buttondataelement.h>
#include <enumdataelement.h>
#include <inspectorcontroller.h>
#include <qtenumdatawidget.h>
#include <qtinspectorview.h>
#include <qtsimpledatawidget.h>

#include <memory>
#include <utility>

/// What the host's objects report to: it decides what the host does in a hook.
class CHookSink
{
public:
    virtual ~CHookSink() = default;
    virtual void OnHook() = 0;
    virtual bool Coin() = 0;

    sTally m_tally;
    sEditing m_line; ///< the line editor
    sEditing m_list; ///< the drop-down list
    int m_iPainting = 0;
    int m_iInView = 0; ///< how many operations of a view are on the stack
    int m_iDelivering = 0;
};

/// Counts how deep something is on the stack.
class CDepth
{
public:
    explicit CDepth(int& depth) : m_rDepth(depth) { ++m_rDepth; }
    ~CDepth() { --m_rDepth; }
    CDepth(const CDepth&) = delete;
    CDepth& operator=(const CDepth&) = delete;

private:
    int& m_rDepth;
};

class CMonkeyNotice : public CInspectorController::IDirtyControllerDataInfo
{
public:
    explicit CMonkeyNotice(CHookSink& sink) : m_bLate(sink.m_iDelivering > 0), m_rSink(sink)
    {
        m_rSink.m_tally.m_setNotices.insert(this);
    }
    ~CMonkeyNotice() override { m_rSink.m_tally.m_setNotices.erase(this); }

    bool m_bDelivered = false;
    /// Queued while others were delivered: it may be dropped by the pass, and is the host's then.
    const bool m_bLate;

private:
    CHookSink& m_rSink;
};

class CMonkeyPayload : public CInspectorController::IControllerData
{
public:
    explicit CMonkeyPayload(CHookSink& sink) : m_rSink(sink) { ++m_rSink.m_tally.m_iPayloads; }
    ~CMonkeyPayload() override { --m_rSink.m_tally.m_iPayloads; }

private:
    CHookSink& m_rSink;
};

/// An element whose hooks let the host do anything.
template <typename Element>
class TMonkeyElement : public Element
{
public:
    template <typename... Arguments>
    explicit TMonkeyElement(CHookSink& sink, Arguments&&... arguments)
        : Element(std::forward<Arguments>(arguments)...), m_rSink(sink)
    {
        ++m_rSink.m_tally.m_iElements;
    }
    ~TMonkeyElement() override { --m_rSink.m_tally.m_iElements; }

    void OnEndEditing(CInspectorDataWidget* widget,
                      CInspectorDataElement::eEndEditCause cause) override
    {
        AroundHook([&] { Element::OnEndEditing(widget, cause); });
    }

protected:
    void InternalValueChanged() override { m_rSink.OnHook(); }

    /// The host's hook before or after the operation that it overrides. What is gone is not touched
    /// any more, as the contract demands.
    template <typename Operation>
    void AroundHook(const Operation& operation)
    {
        CHookSink& sink = m_rSink;
        const std::weak_ptr<int> life = m_pLife;
        const bool isFirst = sink.Coin();
        if (isFirst)
            sink.OnHook();
        if (!life.expired() && this->m_pWidget)
            operation();
        if (!isFirst)
            sink.OnHook();
    }

    CHookSink& m_rSink;

private:
    const std::shared_ptr<int> m_pLife = std::make_shared<int>(0);
};

/// An element with a value that the widget hands over.
template <typename Element>
class TMonkeyValueElement : public TMonkeyElement<Element>
{
public:
    using TMonkeyElement<Element>::TMonkeyElement;
    using Element::OnCtrlValueChange;
    void OnCtrlValueChange() override
    {
        this->AroundHook([this] { Element::OnCtrlValueChange(); });
    }
};

template <typename Widget>
class TMonkeyWidget : public Widget
{
public:
    explicit TMonkeyWidget(CHookSink& sink) : m_rSink(sink)
    {
        m_rSink.m_tally.m_setWidgets.insert(this);
    }
    ~TMonkeyWidget() override { m_rSink.m_tally.m_setWidgets.erase(this); }

protected:
    CHookSink& m_rSink;
};

class CMonkeyField : public TMonkeyWidget<CQTSimpleDataWidget>
{
public:
    explicit CMonkeyField(CHookSink& sink);
    ~CMonkeyField() override;
    void StartEditing() override;
    void FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause) override;
};

class CMonkeyChoice : public TMonkeyWidget<CQTEnumDataWidget>
{
public:
    explicit CMonkeyChoice(CHookSink& sink);
    ~CMonkeyChoice() override;
    void FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause) override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

class CMonkeyController : public CInspectorController
{
public:
    explicit CMonkeyController(CHookSink& sink) : m_rSink(sink) {}

    using CRecord = sInspectorControllerData;
    using CNotice = IDirtyControllerDataInfo;

    void BuildInspector() override {}
    void RefreshInspector() override {}
    void CallCommand(const char*, unsigned long) override { m_rSink.OnHook(); }
    void HandleDirtyItem(CRecord* record, CNotice* info) override;
    void HandleControllerDirt(std::vector<CNotice*>& dirt) override;

    using CInspectorController::m_lItems;
    using CInspectorController::m_mapDirtyItems;
    using CInspectorController::m_pView;
    using CInspectorController::m_vControllerDirt;

private:
    CHookSink& m_rSink;
};

class CMonkeyView : public CQTInspectorView
{
public:
    explicit CMonkeyView(CHookSink& sink) : m_rSink(sink) {}

    void RemoveAll() override;
    void RemoveEmptyGroups() override;
    void EnsureVisible(CInspectorDataWidget* widget) override;
    void OnContentHeightSet() override;

    using CInspectorView::m_lElements;
    using CInspectorView::m_setControlHolders;
    using CInspectorView::m_setHolders;
    using CQTInspectorView::m_pContent;
    using CQTInspectorView::m_pScrollBar;

    /// Grows whenever nodes of the tree are freed.
    unsigned long m_ulTree = 0;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    CHookSink& m_rSink;
};
