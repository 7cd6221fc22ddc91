#pragma once

#include <inspectordataelement.h>
#include <simpledataprovider.h>

#include <string>

/// An element whose value is text, exchanged with its widget through ISimpleDataProvider.
class INSPECTOR_EXPORT CSimpleDataElement : public CInspectorDataElement, public ISimpleDataProvider
{
public:
    CSimpleDataElement();
    /// A copy has the same value and shares the widget and the controller.
    CSimpleDataElement(const CSimpleDataElement& other);
    /// Copies the value and shares the widget and the controller from now on.
    CSimpleDataElement& operator=(const CSimpleDataElement& other);
    ~CSimpleDataElement() override;

    const char* GetType() override; ///< "qt.simple.data"

    /// Sets the value to "Default".
    void Connect() override;
    /// Sets the value to the empty text.
    void Disconnect() override;

protected:
    void InternalValueChanged() override;

public:
    /// Takes the text of the widget, unless the element is read-only. A text that differs from the
    /// value is stored and InternalValueChanged is called; an equal one does nothing.
    ///
    /// The bound widget must be an ISimpleDataProvider. The element may be gone when this returns,
    /// because the hook may remove its row.
    virtual void OnCtrlValueChange();
    using CInspectorDataElement::OnCtrlValueChange;

    /// The value; the reference is good until the value changes.
    const std::string& GetStrCurrentValue() const;
    /// Stores the value; neither the hook nor the widget is told.
    void SetStrCurrentValue(const std::string& value);

    void GetDataAsString(std::string& out) override;

protected:
    /// The bound widget as a provider of text; null when there is none or it is not a provider.
    ISimpleDataProvider* GetSafeControlDataProvider();

    /// The value; empty at first.
    std::string m_sValue;
};
