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
    /// A copy has the same caption and command and shares the widget and the controller.
    CButtonDataElement(const CButtonDataElement& other);
    /// Copies caption and command and shares the widget and the controller from now on.
    CButtonDataElement& operator=(const CButtonDataElement& other);
    ~CButtonDataElement() override;

    const char* GetType() override; ///< "qt.button.data"

    /// Sends the command if the button is enabled. The element must have been added to a
    /// controller. It may be gone when this returns, because the command may remove its row.
    void OnCtrlValueChange(CInspectorDataWidget* widget) override;

    /// Sets the caption; null counts as empty. Like all setters it only stores: repaint the widget
    /// to show the change.
    void SetText(const char* text);
    /// The caption.
    std::string GetText();
    /// Sets the first argument of CInspectorController::CallCommand; null counts as empty.
    void SetCommandString(const char* command);
    /// A disabled button looks disabled and sends nothing.
    void SetEnable(bool enable);
    /// Whether a press sends the command.
    bool GetEnable();

protected:
    /// For derived classes: no caption, no command, identifier 0, disabled.
    CButtonDataElement();

    /// The caption.
    std::string m_sText;
    /// The first argument of the command.
    std::string m_sCommand;
    /// The second argument of the command.
    unsigned long m_ulCommandId = 0;
    /// A press sends the command only when this is true.
    bool m_bEnabled = false;
};
