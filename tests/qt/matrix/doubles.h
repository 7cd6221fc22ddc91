#pragma once

#include <qt/matrix/panel.h>

#include <buttondataelement.h>

#include <string>
#include <utility>
#include <vector>

// The host's side of a matrix panel. After each call of the panel, which may destroy the object,
// an override looks at local copies only.

/// A value element: tells the panel of its hooks.
template <typename Base>
class TMatrixElement : public Base
{
public:
    TMatrixElement(CMatrixPanel& panel, std::string name)
        : m_panel(panel), m_sName(std::move(name)), m_life(panel.m_lives)
    {
    }

    using Base::OnCtrlValueChange;
    void OnCtrlValueChange() override
    {
        CMatrixPanel& panel = m_panel;
        const int life = m_life.Id();
        const bool isSubject = panel.IsSubject(m_sName);
        CInspectorDataWidget* widget = this->m_pWidget;
        Base::OnCtrlValueChange();
        if (isSubject && panel.m_lives.IsAlive(life))
            panel.OnPressed(widget);
    }

    void OnEndEditing(CInspectorDataWidget* widget,
                      CInspectorDataElement::eEndEditCause cause) override
    {
        CMatrixPanel& panel = m_panel;
        const int life = m_life.Id();
        panel.m_log.Add(m_sName, "OnEndEditing", {std::to_string(cause)});
        if (panel.IsSubject(m_sName))
        {
            const bool moves = cause == CInspectorDataElement::eEndEditNext ||
                               cause == CInspectorDataElement::eEndEditPrevious;
            // A host may move on for any cause.
            if (panel.Armed() == eHook::EnsureVisible && !moves)
                this->m_pController->GiveFocusToNextElement(widget);
            panel.At(eHook::OnEndEditing);
        }
        if (panel.m_lives.IsAlive(life))
            Base::OnEndEditing(widget, cause);
    }

    CLife& Life() { return m_life; }

protected:
    void InternalValueChanged() override
    {
        if (m_panel.IsSubject(m_sName))
            m_panel.OnValueChanged();
    }

private:
    CMatrixPanel& m_panel;
    const std::string m_sName;
    CLife m_life;
};

class CMatrixButton : public CButtonDataElement
{
public:
    CMatrixButton(CMatrixPanel& panel, std::string)
        : CButtonDataElement(1), m_panel(panel), m_life(panel.m_lives)
    {
    }

    void OnCtrlValueChange(CInspectorDataWidget* widget) override
    {
        CMatrixPanel& panel = m_panel;
        const int life = m_life.Id();
        CButtonDataElement::OnCtrlValueChange(widget);
        if (panel.m_lives.IsAlive(life))
            panel.OnPressed(widget);
    }

    CLife& Life() { return m_life; }

private:
    CMatrixPanel& m_panel;
    CLife m_life;
};

/// A widget that counts its life.
template <typename Base>
class TMatrixWidget : public Base
{
public:
    TMatrixWidget(CMatrixPanel& panel, std::string name)
        : m_panel(panel), m_sName(std::move(name)), m_life(panel.m_lives)
    {
    }

    CLife& Life() { return m_life; }

protected:
    CMatrixPanel& m_panel;
    const std::string m_sName;

private:
    CLife m_life;
};

/// A widget with an editor, which reports to it.
template <typename Base>
class TMatrixField : public TMatrixWidget<Base>
{
public:
    using TMatrixWidget<Base>::TMatrixWidget;

    void FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause) override
    {
        this->m_panel.m_log.Add(this->m_sName, "FinishValueEdit", {std::to_string(cause)});
        Base::FinishValueEdit(value, cause);
    }
};

class CMatrixNotice : public CInspectorController::IDirtyControllerDataInfo
{
public:
    explicit CMatrixNotice(CLives& lives) : m_life(lives) {}

private:
    CLife m_life;
};

class CMatrixPayload : public CInspectorController::IControllerData
{
public:
    explicit CMatrixPayload(CLives& lives) : m_life(lives) {}

private:
    CLife m_life;
};

class CMatrixController : public CInspectorController
{
public:
    explicit CMatrixController(CMatrixPanel& panel) : m_panel(panel), m_life(panel.m_lives) {}

    void BuildInspector() override {}
    void RefreshInspector() override {}
    void CallCommand(const char*, unsigned long) override;
    void HandleDirtyItem(sInspectorControllerData*, IDirtyControllerDataInfo*) override
    {
        m_panel.At(eHook::HandleDirtyItem);
    }
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override
    {
        m_panel.At(eHook::HandleControllerDirt);
    }

    sInspectorControllerData* Record(const CInspectorDataElement* element) const;

private:
    CMatrixPanel& m_panel;
    CLife m_life;
};

class CMatrixView : public CQTInspectorView
{
public:
    explicit CMatrixView(CMatrixPanel& panel) : m_panel(panel), m_life(panel.m_lives) {}

    void EnsureVisible(CInspectorDataWidget* widget) override
    {
        CQTInspectorView::EnsureVisible(widget);
        m_panel.At(eHook::EnsureVisible);
    }

    void OnContentHeightSet() override
    {
        CQTInspectorView::OnContentHeightSet();
        m_panel.At(eHook::OnContentHeightSet);
    }

private:
    CMatrixPanel& m_panel;
    CLife m_life;
};
