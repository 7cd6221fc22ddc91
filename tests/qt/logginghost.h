#pragma once

#include <support/calllog.h>
#include <support/recordingelement.h>

#include <inspectordatawidget.h>

#include <string>
#include <utility>

/// A value element that also logs when its widget hands it a value.
template <typename Element>
class TLoggingElement : public TRecordingElement<Element>
{
public:
    using TRecordingElement<Element>::TRecordingElement;
    using TRecordingElement<Element>::OnCtrlValueChange;

    void OnCtrlValueChange() override
    {
        this->m_log.Add(this->m_sName, "OnCtrlValueChange");
        RunHook(m_fnOnCtrlValueChange);
        Element::OnCtrlValueChange();
    }

    CHook m_fnOnCtrlValueChange; ///< before the base operation
};

/// A data widget of the library that logs the end of its edits and its own end.
template <typename Widget>
class TLoggingField : public Widget
{
public:
    TLoggingField(CCallLog& log, std::string name) : m_sName(std::move(name)), m_log(log) {}
    ~TLoggingField() override { m_log.Add(m_sName, "~"); }

    void FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause) override
    {
        m_log.Add(m_sName, "FinishValueEdit", {value, std::to_string(cause)});
        Widget::FinishValueEdit(value, cause);
    }

    const std::string m_sName;

private:
    CCallLog& m_log;
};

/// Binds a pair as a controller does, without a controller.
inline void Bind(CInspectorDataElement& element, CInspectorDataWidget& widget)
{
    element.SetDataControl(&widget, nullptr);
    widget.SetDataElement(&element);
}
