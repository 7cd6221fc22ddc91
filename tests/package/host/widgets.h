#pragma once

#include <qtbuttonwidget.h>
#include <qtenumdatawidget.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <qtsimpletextwidget.h>
#include <qtstaticwidget.h>

class HostField : public CQTSimpleDataWidget
{
public:
    const char* GetType() override { return "host.field"; }
};

class HostTextBox : public CQTSimpleTextWidget
{
public:
    int GetRequiredHeight(int) override { return 50; }
};

class HostCheck : public CQTSimpleBoolWidget
{
};

class HostChoice : public CQTEnumDataWidget
{
public:
    HostChoice() { SetEnumSortingMethod(1); }
};

class HostPushButton : public CQTButtonWidget
{
};

class HostLabel : public CQTStaticWidget
{
};

/// A control of the host's own: a plain rectangle.
class HostSwatch : public QWidget,
                   public CInspectorDataWidget,
                   public ISimpleDataProvider,
                   public IInPlaceEditSink
{
public:
    void InitFromElement() override {}
    const char* GetType() override { return "host.swatch"; }
    int GetRequiredWidth() override { return 40; }
    int GetRequiredHeight(int) override { return 20; }
    void ResizeWidget(int width, int height) override { resize(width, height); }
    void MoveWidget(int x, int y) override { move(x, y); }
    void Show() override { show(); }
    void Hide() override { hide(); }
    void GetDataAsString(std::string& out) override { out = "swatch"; }
    void FinishValueEdit(const char*, CInspectorDataElement::eEndEditCause) override {}
};
