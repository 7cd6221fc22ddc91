#pragma once

#include <booldataelement.h>
#include <buttondataelement.h>
#include <enumdataelement.h>
#include <simpledataelement.h>
#include <staticdataelement.h>

/// An element that takes no part in editing.
class HostElement : public CInspectorDataElement
{
public:
    const char* GetType() override { return "host.element"; }
};

/// A text that counts how often the user changed it.
class HostText : public CSimpleDataElement
{
public:
    int m_iChanges = 0;

protected:
    void InternalValueChanged() override { ++m_iChanges; }
};

class HostBool : public CBoolDataElement
{
public:
    int m_iChanges = 0;

protected:
    void InternalValueChanged() override { ++m_iChanges; }
};

class HostEnum : public CEnumDataElement
{
public:
    HostEnum()
    {
        CreateEnum();
        AddEnum("near", "Nearest");
        AddEnum("lin", "Linear");
    }
};

class HostButton : public CButtonDataElement
{
public:
    HostButton() : CButtonDataElement(7)
    {
        SetText("Reset");
        SetCommandString("reset");
        SetEnable(true);
    }
};

class HostNote : public CStaticDataElement
{
public:
    HostNote() : CStaticDataElement("note", 0) {}
};
