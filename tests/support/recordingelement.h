#pragma once

#include <support/calllog.h>

#include <inspectordataelement.h>

#include <string>
#include <utility>

/// An element of any kind that writes the calls of the library to the log before it does what its
/// kind does.
template <typename Element>
class TRecordingElement : public Element
{
public:
    template <typename... Arguments>
    TRecordingElement(CCallLog& log, std::string name, Arguments&&... arguments)
        : Element(std::forward<Arguments>(arguments)...), m_sName(std::move(name)), m_log(log)
    {
    }

    ~TRecordingElement() override
    {
        m_log.Add(m_sName, "~");
        RunHook(m_fnDestroyed);
    }

    void SetDataControl(CInspectorDataWidget* widget, CInspectorController* controller) override
    {
        m_log.Add(m_sName, "SetDataControl");
        Element::SetDataControl(widget, controller);
    }

    void OnEndEditing(CInspectorDataWidget* widget,
                      CInspectorDataElement::eEndEditCause cause) override
    {
        m_log.Add(m_sName, "OnEndEditing", {std::to_string(cause)});
        if (const CHook hook = m_fnOnEndEditing)
            hook();
        else
            Element::OnEndEditing(widget, cause);
    }

    void Connect() override
    {
        m_log.Add(m_sName, "Connect");
        Element::Connect();
        RunHook(m_fnConnect);
    }

    void Disconnect() override
    {
        m_log.Add(m_sName, "Disconnect");
        Element::Disconnect();
        RunHook(m_fnDisconnect);
    }

    CInspectorDataWidget* GetWidget() const { return this->m_pWidget; }
    CInspectorController* GetController() const { return this->m_pController; }

    std::string m_sName;
    CHook m_fnInternalValueChanged;
    CHook m_fnOnEndEditing; ///< in place of the base operation
    CHook m_fnConnect;
    CHook m_fnDisconnect;
    CHook m_fnDestroyed;

protected:
    void InternalValueChanged() override
    {
        m_log.Add(m_sName, "InternalValueChanged");
        Element::InternalValueChanged();
        RunHook(m_fnInternalValueChanged);
    }

    CCallLog& m_log;
};

/// The base contract made concrete, with nothing added.
class CPlainElement : public CInspectorDataElement
{
public:
    const char* GetType() override { return "test.plain"; }
};

using CRecordingElement = TRecordingElement<CPlainElement>;
