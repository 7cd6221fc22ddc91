#pragma once

#include "propertybinding.h"

#include <booldataelement.h>
#include <enumdataelement.h>
#include <simpledataelement.h>
#include <staticdataelement.h>

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

    /// The nodes have different values; the value of the element is false then, so that a press
    /// makes it true for all.
    bool IsMixed() const { return m_bMixed; }

protected:
    void InternalValueChanged() override;

private:
    sPropertyBinding m_binding;
    bool m_bMixed = false;
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

    /// Several when the nodes have different ones.
    const std::vector<CImageOperation::CColor>& GetColors() const { return m_vColors; }
    void PickColor();

private:
    sPropertyBinding m_binding;
    std::vector<CImageOperation::CColor> m_vColors;
};
