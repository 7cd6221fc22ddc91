#pragma once

#include "panelcontroller.h"

#include <inspectorview.h>

class QWidget;

/// Makes the rows of one operation: a description, a group for each kind of property, a button that
/// resets them, and a note for what became of the last value.
class CPanelBuilder
{
public:
    CPanelBuilder(CPanelController& controller, CInspectorView& view, const sOperationInfo& info,
                  bool preview);
    void Build();

private:
    using CNode = CInspectorView::sInspectorElement;
    using CRequest = CInspectorView::sRequestSize;

    void AddGroupOf(const char* title, bool (*belongs)(const sImageProperty&));
    void AddProperty(const sImageProperty& property, CNode* group);
    void AddTextRow(const sImageProperty& property, CNode* group);
    void AddBoolRow(const sImageProperty& property, CNode* group);
    void AddEnumRow(const sImageProperty& property, CNode* group);
    void AddColorRow(const sImageProperty& property, CNode* group);
    void AddFileRow(const sImageProperty& property, CNode* group);
    void AddOtherRow(const sImageProperty& property, CNode* group);
    void AddWrappedText(const std::string& text, bool isNote);
    void AddResetButton();

    /// Registers a row and places its control.
    void Place(CInspectorDataElement* element, CInspectorDataWidget* widget,
               const sImageProperty* property, const char* label, CRequest request, CNode* parent);

    CPanelController& m_controller;
    CInspectorView& m_view;
    const sOperationInfo& m_info;
    bool m_bPreview;
};
