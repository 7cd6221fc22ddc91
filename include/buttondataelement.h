#pragma once

#include <inspectordataelement.h>

#include <string>

/// A push button: a press sends a command to the controller.
class INSPECTOR_EXPORT CButtonDataElement : public CInspectorDataElement
{
public:
    /// \p commandId is the second argument of CInspectorController::CallCommand. A new button is
    /// disabled: call SetEnable before it can send anything.
    explicit CButtonDataElement(unsigned long commandId);
    CButtonDataElement(const CButtonDataElement& other);
    CButtonDataElement& operator=(const CButtonDataElement& other);
    ~CButtonDataElement() override;

    const char* GetType() override; ///< "qt.button.data"

    /// Sends the command if the button is enabled. The element must have been added to a
    /// controller. It may be gone when this returns, because the command may remove its row.
    void OnCtrlValueChange(CInspectorDataWidget* widget) override;

    /// The setters only store; a null text counts as empty. Dirty the row to show the change.
    void SetText(const char* text);
    std::string GetText();
    void SetCommandString(const char* command);
    void SetEnable(bool enable);
    bool GetEnable();

protected:
    CButtonDataElement();

    std::string m_sText;
    std::string m_sCommand;
    unsigned long m_ulCommandId = 0;
    bool m_bEnabled = false;
};
