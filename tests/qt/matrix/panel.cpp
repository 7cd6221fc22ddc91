#include <qt/matrix/panel.h>

#include <qt/matrix/doubles.h>

#include <booldataelement.h>
#include <enumdataelement.h>
#include <qtbuttonwidget.h>
#include <qtenumdatawidget.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <qtsimpletextwidget.h>
#include <simpledataelement.h>

CInspectorController::sInspectorControllerData*
CMatrixController::Record(const CInspectorDataElement* element) const
{
    for (sInspectorControllerData* record : m_lItems)
    {
        if (record->m_pElement == element)
            return record;
    }
    return nullptr;
}

void CMatrixController::CallCommand(const char*, unsigned long)
{
    CMatrixPanel& panel = m_panel;
    if (panel.Armed() == eHook::OnContentHeightSet)
        panel.m_pView->RecomputeLayout();
    else
        panel.At(eHook::CallCommand);
}

CMatrixPanel::CMatrixPanel(eSubject subject) : m_eSubject(subject)
{
    m_window.resize(400, 400);
    m_window.show();
    Restore();
}

CMatrixPanel::~CMatrixPanel() = default;

void CMatrixPanel::Arm(eHook hook, eDeath death)
{
    m_eHook = hook;
    m_eDeath = death;
}

void CMatrixPanel::Restore()
{
    m_eHook = eHook::None;
    if (!m_pController)
        m_pController = std::make_unique<CMatrixController>(*this);
    if (!m_pView)
    {
        m_pView = std::make_unique<CMatrixView>(*this);
        m_pView->setParent(&m_window);
        m_pView->show();
    }
    m_pController->SetInspectorView(m_pView.get());
    m_pView->SetController(m_pController.get());
    m_pController->ClearAllData();
    Fill();
}

void CMatrixPanel::Fill()
{
    m_mapRows.clear();
    AddField("prev");
    AddSubject();
    AddField("next");
    AddField("last");
    m_pController->ConnectDataElements();
    if (auto* button = dynamic_cast<CButtonDataElement*>(Element("subject")))
        button->SetEnable(true);
    m_pView->ResizeInspector(300, 390);
    m_pView->RecomputeLayout();
}

template <typename Model, typename Control>
void CMatrixPanel::AddRow(const std::string& name, Model* element, Control* widget)
{
    m_mapRows[name] = {element, widget, element->Life().Id(), widget->Life().Id()};
    m_pController->AddItem(element, widget, new CMatrixPayload(m_lives));
    m_pView->AddElement(element, widget, name.c_str(), nullptr, nullptr);
}

void CMatrixPanel::AddField(const std::string& name)
{
    AddRow(name, new TMatrixElement<CSimpleDataElement>(*this, name),
           new TMatrixField<CQTSimpleDataWidget>(*this, name));
}

void CMatrixPanel::AddSubject()
{
    const std::string name = "subject";
    switch (m_eSubject)
    {
    case eSubject::LineEditor:
        AddField(name);
        break;
    case eSubject::List:
    {
        auto* element = new TMatrixElement<CEnumDataElement>(*this, name);
        element->CreateEnum();
        for (const char* value : {"one", "two", "three"})
            element->AddEnum(value, value);
        AddRow(name, element, new TMatrixField<CQTEnumDataWidget>(*this, name));
        break;
    }
    case eSubject::Bool:
        AddRow(name, new TMatrixElement<CBoolDataElement>(*this, name),
               new TMatrixWidget<CQTSimpleBoolWidget>(*this, name));
        break;
    case eSubject::Button:
        AddRow(name, new CMatrixButton(*this, name),
               new TMatrixWidget<CQTButtonWidget>(*this, name));
        break;
    case eSubject::TextBox:
        AddRow(name, new TMatrixElement<CSimpleDataElement>(*this, name),
               new TMatrixWidget<CQTSimpleTextWidget>(*this, name));
        break;
    }
}

bool CMatrixPanel::HasRow(const std::string& row) const
{
    const auto entry = m_mapRows.find(row);
    return entry != m_mapRows.end() && m_lives.IsAlive(entry->second.m_iElementLife) &&
           m_lives.IsAlive(entry->second.m_iWidgetLife);
}

QWidget* CMatrixPanel::Widget(const std::string& row) const
{
    return m_mapRows.at(row).m_pWidget;
}

CInspectorDataElement* CMatrixPanel::Element(const std::string& row) const
{
    return m_mapRows.at(row).m_pElement;
}

std::string CMatrixPanel::Value(const std::string& row) const
{
    return dynamic_cast<CSimpleDataElement*>(Element(row))->GetStrCurrentValue();
}

void CMatrixPanel::Deliver()
{
    if (m_eHook == eHook::HandleControllerDirt)
        m_pController->DirtifyController(new CMatrixNotice(m_lives));
    auto& controller = static_cast<CMatrixController&>(*m_pController);
    for (const char* row : {"subject", "next", "subject"})
        controller.DirtifyItem(controller.Record(Element(row)), new CMatrixNotice(m_lives));
    // A widget must not be destroyed while it is painted: a host delivers by itself for that.
    if (m_eDeath == eDeath::View || m_eDeath == eDeath::Controller)
        m_pController->HandleDirtyItems();
    else
        m_pView->grab();
}

void CMatrixPanel::At(eHook hook)
{
    if (hook != m_eHook)
        return;
    m_eHook = eHook::None;
    m_bStruck = true;
    Destroy();
}

void CMatrixPanel::OnValueChanged()
{
    if (m_eHook == eHook::CallCommand)
        m_pController->CallCommand("from a hook", 0);
    else if (m_eHook == eHook::OnContentHeightSet)
        m_pView->RecomputeLayout();
    else
        At(eHook::InternalValueChanged);
}

void CMatrixPanel::OnPressed(CInspectorDataWidget* widget)
{
    const bool isEditor = m_eSubject == eSubject::LineEditor || m_eSubject == eSubject::List;
    if (isEditor || m_eHook == eHook::OnCtrlValueChange)
        At(eHook::OnCtrlValueChange);
    else if (m_eHook == eHook::HandleDirtyItem || m_eHook == eHook::HandleControllerDirt)
        Deliver();
    else if (m_eHook == eHook::EnsureVisible)
        m_pController->GiveFocusToNextElement(widget);
}

void CMatrixPanel::Destroy()
{
    switch (m_eDeath)
    {
    case eDeath::ThisRow:
        m_pController->RemoveItem(Element("subject"));
        break;
    case eDeath::Neighbour:
        m_pController->RemoveItem(Element("next"));
        break;
    case eDeath::AllRows:
        m_pController->ClearAllData();
        break;
    case eDeath::Rebuild:
        m_pController->ClearAllData();
        Fill();
        break;
    case eDeath::View:
        m_pView.reset();
        break;
    case eDeath::Controller:
        m_pController.reset();
        break;
    }
}
