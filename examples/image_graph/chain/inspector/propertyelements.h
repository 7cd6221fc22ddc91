#pragma once

#include "../graphdocument.h"

#include <booldataelement.h>
#include <enumdataelement.h>
#include <simpledataelement.h>
#include <staticdataelement.h>

class CPanelController;

/// What an element of the panel shows: a property of the operation that the panel shows, or one
/// component of a colour.
struct sPropertyBinding
{
    CPanelController* m_pPanel = nullptr;
    const sImageProperty* m_pProperty = nullptr;
    int m_iComponent = -1; ///< of a colour; -1 for the property as a whole

    std::string Read() const;
    /// Hands the user's value to the document, and tells the panel what became of it.
    void Write(const std::string& text, CInspectorDataElement* element) const;
};

/// An element that can take its value from the operation anew.
class IPropertyElement
{
public:
    virtual ~IPropertyElement();
    virtual void LoadValue() = 0;
};

/// A number, a text, a path or a component of a colour.
class CTextPropertyElement : public CSimpleDataElement, public IPropertyElement
{
public:
    explicit CTextPropertyElement(const sPropertyBinding& binding);
    void Connect() override;
    void LoadValue() override;

protected:
    void InternalValueChanged() override;

private:
    sPropertyBinding m_binding;
};

class CBoolPropertyElement : public CBoolDataElement, public IPropertyElement
{
public:
    explicit CBoolPropertyElement(const sPropertyBinding& binding);
    void Connect() override;
    void LoadValue() override;

protected:
    void InternalValueChanged() override;

private:
    sPropertyBinding m_binding;
};

class CEnumPropertyElement : public CEnumDataElement, public IPropertyElement
{
public:
    explicit CEnumPropertyElement(const sPropertyBinding& binding);
    void Connect() override;
    void LoadValue() override;

protected:
    void InternalValueChanged() override;

private:
    sPropertyBinding m_binding;
};

/// A patch of the colour itself, beside its components.
class CSwatchElement : public CStaticDataElement, public IPropertyElement
{
public:
    explicit CSwatchElement(const sPropertyBinding& binding);
    void Connect() override;
    void LoadValue() override;

    const CImageOperation::CColor& GetColor() const { return m_color; }
    void PickColor();

private:
    sPropertyBinding m_binding;
    CImageOperation::CColor m_color{};
};
