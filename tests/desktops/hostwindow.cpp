#include "hostwindow.h"

#include <booldataelement.h>
#include <buttondataelement.h>
#include <enumdataelement.h>
#include <qtbuttonwidget.h>
#include <qtsimpleboolwidget.h>
#include <simpledataelement.h>

#include <QKeyEvent>
#include <QScrollBar>
#include <QShortcut>

#include <algorithm>
#include <stdexcept>

namespace
{

std::string TextOf(const CSimpleDataElement& element)
{
    return element.GetStrCurrentValue();
}

std::string TextOf(CBoolDataElement& element)
{
    return element.GetValue() ? "true" : "false";
}

/// An element that writes down what it learns.
template <typename Base>
class TElement : public Base
{
public:
    TElement(CHostWindow& host, std::string name) : m_rHost(host), m_sName(std::move(name)) {}

    void Connect() override {}

    void OnEndEditing(CInspectorDataWidget* widget,
                      CInspectorDataElement::eEndEditCause cause) override
    {
        m_rHost.Add(m_sName + " ended " + std::to_string(cause));
        if (m_rHost.m_OnEnd)
            m_rHost.m_OnEnd();
        else
            Base::OnEndEditing(widget, cause);
    }

protected:
    void InternalValueChanged() override { m_rHost.Add(m_sName + " changed " + TextOf(*this)); }

private:
    CHostWindow& m_rHost;
    std::string m_sName;
};

} // namespace

class CHostWindow::CController : public CInspectorController
{
public:
    explicit CController(CHostWindow& host) : m_rHost(host) {}

    void BuildInspector() override {}
    void RefreshInspector() override {}
    void HandleDirtyItem(sInspectorControllerData*, IDirtyControllerDataInfo*) override {}
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override
    {
        if (const auto onDelivery = m_rHost.m_OnDelivery)
            onDelivery();
    }
    void CallCommand(const char* command, unsigned long) override
    {
        m_rHost.Add(std::string("command ") + command);
    }

private:
    CHostWindow& m_rHost;
};

struct CHostWindow::sRow
{
    std::string m_sName;
    CInspectorDataElement* m_pElement;
    QWidget* m_pWidget;
};

CHostWindow::CHostWindow()
    : m_pCanvas(new QWidget(this)), m_pView(new CQTInspectorView),
      m_pController(std::make_unique<CController>(*this))
{
    setWindowTitle(QStringLiteral("host"));
    resize(500, 400);
    m_pView->setParent(this);
    m_pView->move(20, 20);
    m_pCanvas->setGeometry(300, 20, 180, 360);
    m_pCanvas->setFocusPolicy(Qt::StrongFocus);
    m_pCanvas->setFocus();
    for (const char* keys : {"Del", "Backspace", "Ctrl+Z", "Space", "X", "Y"})
    {
        auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), this);
        shortcut->setContext(Qt::ApplicationShortcut);
        connect(shortcut, SIGNAL(activated()), SLOT(OnShortcut()));
    }
    m_pController->SetInspectorView(m_pView);
    m_pView->SetController(m_pController.get());
    Build();
}

CHostWindow::~CHostWindow() = default;

template <typename Element, typename Widget>
Element& CHostWindow::AddRow(const char* name, Element* element, Widget* widget)
{
    m_pController->AddItem(element, widget, nullptr);
    m_pView->AddElement(element, widget, name, nullptr, nullptr);
    m_vRows.push_back({name, element, widget});
    return *element;
}

void CHostWindow::Build()
{
    for (const auto& [name, value] :
         {std::pair("a", "1"), std::pair("b", "2"), std::pair("c", "3")})
        AddRow(name, new TElement<CSimpleDataElement>(*this, name), new CQTSimpleDataWidget)
            .SetStrCurrentValue(value);
    auto& choice = AddRow("d", new TElement<CEnumDataElement>(*this, "d"), new CQTEnumDataWidget);
    choice.CreateEnum();
    for (const char* value : {"p", "q", "r"})
        choice.AddEnum(value, (std::string("Label ") + value).c_str());
    choice.SetStrCurrentValue("p");
    AddRow("e", new TElement<CBoolDataElement>(*this, "e"), new CQTSimpleBoolWidget);
    auto& button = AddRow("f", new CButtonDataElement(7), new CQTButtonWidget);
    button.SetText("Run");
    button.SetCommandString("run");
    button.SetEnable(true);
    AddRow("g", new TElement<CSimpleDataElement>(*this, "g"), new CQTSimpleTextWidget)
        .SetStrCurrentValue("one\ntwo\nthree");
    m_pController->ConnectDataElements();
    m_pView->ResizeInspector(260, 360);
    m_pView->RecomputeLayout();
    m_pView->show();
}

void CHostWindow::Clear()
{
    m_vRows.clear();
    m_pController->ClearAllData();
}

void CHostWindow::Dirtify()
{
    m_pController->DirtifyController(nullptr);
}

CHostWindow::CCalls CHostWindow::TakeCalls()
{
    return std::exchange(m_vCalls, {});
}

std::string CHostWindow::Value(const std::string& row) const
{
    for (const sRow& candidate : m_vRows)
    {
        if (candidate.m_sName != row)
            continue;
        if (auto* text = dynamic_cast<CSimpleDataElement*>(candidate.m_pElement))
            return TextOf(*text);
        if (auto* boolean = dynamic_cast<CBoolDataElement*>(candidate.m_pElement))
            return TextOf(*boolean);
    }
    throw std::out_of_range("no value in row " + row);
}

QWidget& CHostWindow::Row(const std::string& row) const
{
    const auto found =
        std::find_if(m_vRows.begin(), m_vRows.end(),
                     [&row](const sRow& candidate) { return candidate.m_sName == row; });
    if (found == m_vRows.end())
        throw std::out_of_range("no row " + row);
    return *found->m_pWidget;
}

CQTSimpleDataWidget& CHostWindow::Field(const std::string& row) const
{
    return dynamic_cast<CQTSimpleDataWidget&>(Row(row));
}

QScrollBar& CHostWindow::ScrollBar()
{
    return *m_pView->findChild<QScrollBar*>(QString(), Qt::FindDirectChildrenOnly);
}

void CHostWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Shift && event->key() != Qt::Key_Control)
        Add("key " + QKeySequence(event->key()).toString().toStdString());
}

void CHostWindow::mousePressEvent(QMouseEvent*)
{
    Add("press");
}

void CHostWindow::OnShortcut()
{
    Add("shortcut " + static_cast<QShortcut*>(sender())->key().toString().toStdString());
}
