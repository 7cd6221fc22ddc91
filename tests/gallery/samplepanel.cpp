#include "samplepanel.h"

#include <booldataelement.h>
#include <buttondataelement.h>
#include <enumdataelement.h>
#include <qtbuttonwidget.h>
#include <qtenumdatawidget.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <qtsimpletextwidget.h>
#include <qtstaticwidget.h>
#include <staticdataelement.h>

#include <QImage>

CSamplePanel::CSamplePanel()
{
    m_Controller.SetInspectorView(&m_View);
    m_View.SetController(&m_Controller);
}

template <typename Element, typename Widget>
Element* CSamplePanel::Add(Element* element, Widget* widget, const char* label, sNode* parent,
                           sRequest* request)
{
    m_Controller.AddItem(element, widget, nullptr);
    m_View.AddElement(element, widget, label, request, parent);
    return element;
}

CSamplePanel::sNode* CSamplePanel::Group(const char* name, sNode* parent)
{
    return m_View.AddGroup(name, parent);
}

CSamplePanel::sNode* CSamplePanel::Container(const char* name, sNode* parent)
{
    return m_View.AddSingleLineContainer(name, nullptr, parent);
}

CInspectorDataElement& CSamplePanel::Text(const char* label, const char* value, sNode* parent,
                                          sRequest* request)
{
    auto* element = Add(new CSimpleDataElement, new CQTSimpleDataWidget, label, parent, request);
    element->SetStrCurrentValue(value);
    element->UpdateData();
    return *element;
}

CInspectorDataElement& CSamplePanel::Bool(const char* label, bool value, sNode* parent)
{
    auto* element = Add(new CBoolDataElement, new CQTSimpleBoolWidget, label, parent);
    element->SetValue(value);
    element->UpdateData();
    return *element;
}

CInspectorDataElement& CSamplePanel::Enum(const char* label, const char* value, sNode* parent)
{
    auto* element = Add(new CEnumDataElement, new CQTEnumDataWidget, label, parent);
    element->CreateEnum();
    element->AddEnum("normal", "Normal");
    element->AddEnum("multiply", "Multiply");
    element->AddEnum("screen", "Screen");
    element->SetStrCurrentValue(value);
    element->UpdateData();
    return *element;
}

void CSamplePanel::Button(const char* label, const char* text, bool enabled, sNode* parent,
                          sRequest* request)
{
    auto* element = Add(new CButtonDataElement(0), new CQTButtonWidget, label, parent, request);
    element->SetText(text);
    element->SetEnable(enabled);
}

void CSamplePanel::Static(const char* label, const char* text, int flags, sNode* parent)
{
    Add(new CStaticDataElement(text, flags), new CQTStaticWidget, label, parent);
}

CInspectorDataElement& CSamplePanel::TextBox(const char* label, const char* value, sNode* parent)
{
    auto* element = Add(new CSimpleDataElement, new CQTSimpleTextWidget, label, parent);
    element->SetStrCurrentValue(value);
    element->UpdateData();
    return *element;
}

QImage CSamplePanel::Draw(qreal scale)
{
    QImage image(m_View.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(m_View.palette().color(QPalette::Window));
    // The first drawing fixes the faces of the buttons and delivers what is queued.
    m_View.render(&image);
    return image;
}
