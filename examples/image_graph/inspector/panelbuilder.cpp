#include "panelbuilder.h"

#include "panelwidgets.h"
#include "propertyelements.h"

#include <buttondataelement.h>
#include <qtbuttonwidget.h>
#include <qtenumdatawidget.h>
#include <qtsimpletextwidget.h>

#include <QApplication>
#include <QFontMetrics>
#include <QWidget>

#include "../gegl/numbertext.h"

namespace
{

// Controls of all groups begin in one column.
constexpr int g_iControlPercent = 60;
constexpr int g_iMinControlWidth = 60;
const QColor g_colorNote(240, 184, 100);
constexpr int g_iMaxLabelWidth = 132;

bool IsNumber(const sImageProperty& property)
{
    return property.m_eKind == ePropertyNumber || property.m_eKind == ePropertyInteger ||
           property.m_eKind == ePropertySeed;
}

bool IsChoice(const sImageProperty& property)
{
    return property.m_eKind == ePropertyBool || property.m_eKind == ePropertyEnum;
}

template <ePropertyKind Kind>
bool IsKind(const sImageProperty& property)
{
    return property.m_eKind == Kind;
}

// A long label would push the controls of its group out of the common column.
std::string Shortened(const std::string& label)
{
    return QFontMetrics(QApplication::font())
        .elidedText(QString::fromStdString(label), Qt::ElideRight, g_iMaxLabelWidth)
        .toStdString();
}

CInspectorView::sRequestSize ColumnRequest()
{
    CInspectorView::sRequestSize request;
    request.SetMinValueAbsolute(g_iMinControlWidth);
    request.SetMaxValueRelative(g_iControlPercent);
    return request;
}

CInspectorView::sRequestSize FixedRequest(int width)
{
    CInspectorView::sRequestSize request;
    request.SetMinValueAbsolute(width);
    request.SetMaxValueAbsolute(width);
    return request;
}

CInspectorView::sRequestSize AtLeast(int width)
{
    CInspectorView::sRequestSize request;
    request.SetMinValueAbsolute(width);
    return request;
}

QString HelpText(const sImageProperty& property)
{
    QString help = QString::fromStdString(property.m_sLabel);
    if (!property.m_sHelp.empty())
        help += QStringLiteral("\n%1").arg(QString::fromStdString(property.m_sHelp));
    if (IsNumber(property))
        help += QStringLiteral("\n%1 \u2026 %2")
                    .arg(QString::fromStdString(NumberToText(property.m_dMin)),
                         QString::fromStdString(NumberToText(property.m_dMax)));
    return help;
}

} // namespace

CPanelBuilder::CPanelBuilder(CPanelController& controller, CInspectorView& view,
                             const sOperationInfo& info, bool preview)
    : m_controller(controller), m_view(view), m_info(info), m_bPreview(preview)
{
}

void CPanelBuilder::Build()
{
    // The one line of the preview is for the values.
    if (!m_bPreview && !m_info.m_sDescription.empty())
        AddWrappedText(m_info.m_sDescription, false);
    AddGroupOf("Numbers", IsNumber);
    AddGroupOf("Options", IsChoice);
    AddGroupOf("Colours", IsKind<ePropertyColor>);
    AddGroupOf("Text", IsKind<ePropertyText>);
    AddGroupOf("Files", IsKind<ePropertyFile>);
    AddGroupOf("Other", IsKind<ePropertyOther>);
    m_view.RemoveEmptyGroups();
    if (m_bPreview)
        return;
    if (!m_info.m_vProperties.empty())
        AddResetButton();
    AddWrappedText(m_info.m_vProperties.empty() ? "This operation has no parameters." : "", true);
}

void CPanelBuilder::AddGroupOf(const char* title, bool (*belongs)(const sImageProperty&))
{
    CNode* group = m_view.AddGroup(title, nullptr);
    for (const sImageProperty& property : m_info.m_vProperties)
        if (belongs(property))
            AddProperty(property, group);
}

void CPanelBuilder::AddProperty(const sImageProperty& property, CNode* group)
{
    switch (property.m_eKind)
    {
    case ePropertyNumber:
    case ePropertyInteger:
    case ePropertySeed:
    case ePropertyText:
        AddTextRow(property, group);
        break;
    case ePropertyBool:
        AddBoolRow(property, group);
        break;
    case ePropertyEnum:
        AddEnumRow(property, group);
        break;
    case ePropertyColor:
        AddColorRow(property, group);
        break;
    case ePropertyFile:
        AddFileRow(property, group);
        break;
    case ePropertyOther:
        AddOtherRow(property, group);
        break;
    }
}

void CPanelBuilder::Place(CInspectorDataElement* element, CInspectorDataWidget* widget,
                          const sImageProperty* property, const char* label, CRequest request,
                          CNode* parent)
{
    if (auto* control = dynamic_cast<QWidget*>(widget))
    {
        if (property)
        {
            control->setObjectName(QString::fromStdString(property->m_sName));
            control->setToolTip(HelpText(*property));
        }
        QPalette palette = control->palette();
        if (property)
            palette.setColor(QPalette::WindowText, palette.color(QPalette::Text));
        if (element->IsReadOnly())
            palette.setColor(QPalette::Base, palette.color(QPalette::Window));
        control->setPalette(palette);
    }
    m_controller.AddItem(element, widget, new sRowPayload(property));
    m_view.AddElement(element, widget, label, &request, parent);
}

void CPanelBuilder::AddTextRow(const sImageProperty& property, CNode* group)
{
    const sPropertyBinding binding{&m_controller, &property};
    CInspectorDataWidget* widget = nullptr;
    if (property.m_bMultiLine && !m_bPreview)
        widget = new CQTSimpleTextWidget;
    else
        widget = new CFieldWidget;
    Place(new CTextPropertyElement(binding), widget, &property,
          Shortened(property.m_sLabel).c_str(), ColumnRequest(), group);
}

void CPanelBuilder::AddBoolRow(const sImageProperty& property, CNode* group)
{
    const sPropertyBinding binding{&m_controller, &property};
    Place(new CBoolPropertyElement(binding), new CMixedBoolWidget, &property,
          Shortened(property.m_sLabel).c_str(), ColumnRequest(), group);
}

void CPanelBuilder::AddEnumRow(const sImageProperty& property, CNode* group)
{
    const sPropertyBinding binding{&m_controller, &property};
    auto* widget = new CQTEnumDataWidget;
    widget->SetEnumSortingMethod(2); // as the definition has it
    Place(new CEnumPropertyElement(binding), widget, &property,
          Shortened(property.m_sLabel).c_str(), ColumnRequest(), group);
}

void CPanelBuilder::AddColorRow(const sImageProperty& property, CNode* group)
{
    CRequest request = ColumnRequest();
    CNode* line =
        m_view.AddSingleLineContainer(Shortened(property.m_sLabel).c_str(), &request, group);
    const sPropertyBinding whole{&m_controller, &property};
    Place(new CSwatchElement(whole), new CSwatchWidget, &property, nullptr, FixedRequest(20), line);
    for (int component = 0; component < 4; ++component)
    {
        const sPropertyBinding part{&m_controller, &property, component};
        Place(new CTextPropertyElement(part), new CFieldWidget, &property, nullptr, AtLeast(24),
              line);
    }
}

void CPanelBuilder::AddFileRow(const sImageProperty& property, CNode* group)
{
    CRequest request = ColumnRequest();
    CNode* line =
        m_view.AddSingleLineContainer(Shortened(property.m_sLabel).c_str(), &request, group);
    const sPropertyBinding binding{&m_controller, &property};
    Place(new CTextPropertyElement(binding), new CFieldWidget, &property, nullptr, AtLeast(40),
          line);
    const auto number = static_cast<unsigned long>(&property - m_info.m_vProperties.data());
    auto* button = new CButtonDataElement(number);
    button->SetText("\u00a0\u00a0Browse\u2026\u00a0\u00a0");
    button->SetCommandString(CPanelController::g_sBrowse);
    button->SetEnable(!property.m_bReadOnly);
    Place(button, new CQTButtonWidget, nullptr, nullptr, FixedRequest(80), line);
}

void CPanelBuilder::AddOtherRow(const sImageProperty& property, CNode* group)
{
    Place(new CStaticDataElement("not edited here", Qt::AlignLeft | Qt::AlignVCenter),
          new CQTStaticWidget, &property, Shortened(property.m_sLabel).c_str(), ColumnRequest(),
          group);
}

void CPanelBuilder::AddWrappedText(const std::string& text, bool isNote)
{
    auto* element = new CStaticDataElement(text.c_str(), Qt::AlignLeft | Qt::AlignTop);
    auto* widget = new CWrappedTextWidget;
    if (isNote)
    {
        QPalette palette = widget->palette();
        palette.setColor(QPalette::WindowText, g_colorNote);
        widget->setPalette(palette);
        m_controller.SetNoteElement(element);
    }
    CRequest request;
    request.SetOptions(CInspectorView::eRequestOptionNoLabel);
    Place(element, widget, nullptr, nullptr, request, nullptr);
}

void CPanelBuilder::AddResetButton()
{
    auto* button = new CButtonDataElement(0);
    button->SetText("\u00a0\u00a0\u00a0Reset\u00a0\u00a0\u00a0");
    button->SetCommandString(CPanelController::g_sReset);
    button->SetEnable(true);
    CRequest request;
    request.SetOptions(CInspectorView::eRequestOptionNoLabel);
    Place(button, new CQTButtonWidget, nullptr, nullptr, request, nullptr);
}
