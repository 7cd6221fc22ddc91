#pragma once

#include <inspectordataelement.h>

/// An element whose value is yes or no, edited by a CQTSimpleBoolWidget.
class INSPECTOR_EXPORT CBoolDataElement : public CInspectorDataElement
{
public:
    CBoolDataElement();
    /// A copy has the same value and shares the widget and the controller.
    CBoolDataElement(const CBoolDataElement& other);
    /// Copies the value and shares the widget and the controller from now on.
    CBoolDataElement& operator=(const CBoolDataElement& other);
    ~CBoolDataElement() override;

    const char* GetType() override; ///< "qt.bool.data"

    /// Sets the value to false.
    void Connect() override;
    /// Does nothing.
    void Disconnect() override;

    /// Takes the value of the bound widget, if that is a CQTSimpleBoolWidget. A value that differs
    /// is stored and InternalValueChanged is called.
    ///
    /// The read-only flag is not asked: it is the widget that keeps the user from toggling. The
    /// element may be gone when this returns, because the hook may remove its row.
    virtual void OnCtrlValueChange();
    using CInspectorDataElement::OnCtrlValueChange;

    /// The stored value; false at first.
    virtual bool GetValue();
    /// Stores the value; neither the hook nor the widget is told.
    virtual void SetValue(bool value);

protected:
    /// The value.
    bool m_bValue = false;
};
