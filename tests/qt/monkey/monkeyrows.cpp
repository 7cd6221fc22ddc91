#include "monkey.h"

#include <booldataelement.h>
#include <qtbuttonwidget.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpletextwidget.h>
#include <qtstaticwidget.h>
#include <simpledataelement.h>
#include <staticdataelement.h>

#include <climits>

namespace
{

using sRow = std::pair<CInspectorDataElement*, CInspectorDataWidget*>;
using CNode = CInspectorView::sInspectorElement;

constexpr int g_iRowsAtMost = 24;

sRow NewRow(CHookSink& sink, int kind)
{
    switch (kind)
    {
    case 0:
        return {new TMonkeyElement<CButtonDataElement>(sink, 7UL),
                new TMonkeyWidget<CQTButtonWidget>(sink)};
    case 1:
        return {new TMonkeyElement<CStaticDataElement>(sink, "A static text", 0x0081),
                new TMonkeyWidget<CQTStaticWidget>(sink)};
    case 2:
    case 3:
        return {new TMonkeyValueElement<CBoolDataElement>(sink),
                new TMonkeyWidget<CQTSimpleBoolWidget>(sink)};
    case 4:
    case 5:
        return {new TMonkeyValueElement<CSimpleDataElement>(sink),
                new TMonkeyWidget<CQTSimpleTextWidget>(sink)};
    case 6:
    case 7:
    case 8:
        return {new TMonkeyValueElement<CEnumDataElement>(sink), new CMonkeyChoice(sink)};
    default:
        return {new TMonkeyValueElement<CSimpleDataElement>(sink), new CMonkeyField(sink)};
    }
}

void CollectParents(std::list<CNode>& nodes, std::vector<CNode*>& parents)
{
    for (CNode& node : nodes)
    {
        const bool isContainer =
            node.m_pHolder && node.m_pHolder->m_iKind == CInspectorView::eHolderContainer;
        if (node.m_iKind == CInspectorView::eElementGroup || isContainer)
            parents.push_back(&node);
        CollectParents(node.m_lChildren, parents);
    }
}

} // namespace

const char* CMonkey::RandomText()
{
    static const std::string longText(5000, 'x');
    return m_random.OneOf({static_cast<const char*>(nullptr), "", "Size", "A", "12", "\xE4\xF6\xFC",
                           "several words in one label", "two\nlines\tand\x01\x7F control",
                           "<b>markup</b>", longText.c_str()});
}

int CMonkey::RandomSize()
{
    return m_random.OneIn(8) ? m_random.OneOf({0, -1, 1, 19, 20, 21, -20, -1000, 100000, 16777215,
                                               INT_MAX, INT_MIN, INT_MAX - 19, INT_MIN + 20})
                             : m_random.Between(30, 500);
}

CInspectorView::sRequestSize* CMonkey::RandomRequest()
{
    if (m_random.OneIn(2))
        return nullptr;
    const auto type = [this]
    {
        return m_random.OneOf(
            {CInspectorView::eRequestSizeAbsolute, CInspectorView::eRequestSizeRelative});
    };
    const auto value = [this] {
        return m_random.OneOf({-1, 0, 1, 20, 33, 50, 100, 150, -50, 100000, INT_MAX, INT_MIN});
    };
    m_request.SetMinValue(type(), value());
    m_request.SetMaxValue(type(), value());
    m_request.SetOptions(m_random.Below(4));
    return &m_request;
}

CNode* CMonkey::RandomParent(CMonkeyView& view)
{
    std::vector<CNode*> parents{nullptr};
    CollectParents(*view.GetListElements(), parents);
    return m_random.AnyOf(parents);
}

CMonkeyController::CRecord* CMonkey::RandomRecord(const CMonkeyController& controller)
{
    return controller.m_lItems.empty() ? nullptr : m_random.AnyOf(controller.m_lItems);
}

CInspectorDataElement* CMonkey::RandomElement(const CMonkeyController& controller)
{
    const auto* record = RandomRecord(controller);
    return record ? record->m_pElement : nullptr;
}

CInspectorDataWidget* CMonkey::RandomControl(const CMonkeyController& controller)
{
    const auto* record = RandomRecord(controller);
    return record ? record->m_pWidget : nullptr;
}

void CMonkey::AddRow(sPanel& panel)
{
    if (panel.m_pController->m_lItems.size() >= g_iRowsAtMost)
        return;
    const auto [element, widget] = NewRow(*this, m_random.Below(13));
    WatchEditors();
    panel.m_pController->AddItem(element, widget, Coin() ? new CMonkeyPayload(*this) : nullptr);
    if (auto* choice = dynamic_cast<CEnumDataElement*>(element))
        ChangeDefinition(*choice);
    if (auto* button = dynamic_cast<CButtonDataElement*>(element))
    {
        button->SetEnable(!m_random.OneIn(4));
        button->SetText(RandomText());
    }
    if (panel.m_pView && !m_random.OneIn(10))
        Place(*panel.m_pView, *panel.m_pController->m_lItems.back());
}

void CMonkey::Place(CMonkeyView& view, CMonkeyController::CRecord& record)
{
    if (!record.m_pWidget)
        return;
    const CDepth inView(m_iInView);
    view.AddElement(record.m_pElement, record.m_pWidget, RandomText(), RandomRequest(),
                    RandomParent(view));
}

void CMonkey::FillPanel(sPanel& panel)
{
    for (int rows = m_random.Between(1, 6); rows > 0 && panel.m_pController; --rows)
        AddRow(panel);
    if (panel.m_pController && !m_random.OneIn(5))
        panel.m_pController->ConnectDataElements();
    if (panel.m_pView && Coin())
    {
        const CDepth inView(m_iInView);
        panel.m_pView->RecomputeLayout();
    }
}

void CMonkey::RebuildTree(sPanel& panel)
{
    CMonkeyView* view = panel.m_pView;
    if (!view)
        return;
    const CDepth inView(m_iInView);
    view->RemoveAll();
    for (int nodes = m_random.Below(5); nodes > 0; --nodes)
    {
        if (Coin())
            view->AddGroup(RandomText(), nullptr);
        else
            view->AddSingleLineContainer(RandomText(), RandomRequest(), nullptr);
    }
    // A hook may take the rows or the new tree away meanwhile.
    const unsigned long tree = view->m_ulTree;
    for (std::size_t place = 0; panel.m_pController && view->m_ulTree == tree &&
                                place < panel.m_pController->m_lItems.size();
         ++place)
        Place(*view, **std::next(panel.m_pController->m_lItems.begin(), place));
}

void CMonkey::ChangeDefinition(CEnumDataElement& element)
{
    switch (m_random.Below(5))
    {
    case 0:
        element.SetExternalEnum(&m_sharedDefinition);
        break;
    case 1:
        element.SetExternalEnum(nullptr);
        break;
    case 2:
        element.ClearEnum();
        break;
    default:
        element.CreateEnum();
        for (int entries = m_random.Below(20); entries > 0; --entries)
            element.AddEnum(std::to_string(m_random.Below(9)).c_str(), RandomText());
        break;
    }
}
