#pragma once

#include <inspectorcontroller.h>
#include <inspectordataelement.h>
#include <qtinspectorview.h>

#include <QWidget>

/// The least that a host adds to the controller: nothing of it is needed for still pictures.
class CStillController : public CInspectorController
{
public:
    void BuildInspector() override {}
    void RefreshInspector() override {}
    void HandleDirtyItem(sInspectorControllerData*, IDirtyControllerDataInfo*) override {}
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override {}
};

/// A panel that is filled row by row and then drawn.
class CSamplePanel
{
public:
    using sNode = CInspectorView::sInspectorElement;
    using sRequest = CInspectorView::sRequestSize;

    CSamplePanel();

    sNode* Group(const char* name, sNode* parent = nullptr);
    sNode* Container(const char* name, sNode* parent);
    CInspectorDataElement& Text(const char* label, const char* value, sNode* parent,
                                sRequest* request = nullptr);
    CInspectorDataElement& Bool(const char* label, bool value, sNode* parent);
    /// An enumeration of three blend modes with the given value.
    CInspectorDataElement& Enum(const char* label, const char* value, sNode* parent);
    void Button(const char* label, const char* text, bool enabled, sNode* parent,
                sRequest* request = nullptr);
    void Static(const char* label, const char* text, int flags, sNode* parent);
    CInspectorDataElement& TextBox(const char* label, const char* value, sNode* parent);

    /// The panel as it is on the screen: \p scale pixels for each of its own.
    QImage Draw(qreal scale = 1);

    CQTInspectorView m_View;
    CStillController m_Controller; // goes first, with the rows

private:
    template <typename Element, typename Widget>
    Element* Add(Element* element, Widget* widget, const char* label, sNode* parent,
                 sRequest* request = nullptr);
};
