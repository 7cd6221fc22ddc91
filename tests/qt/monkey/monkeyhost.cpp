#include "monkey.h"

#include <booldataelement.h>
#include <qttextencoding.h>
#include <simpledataelement.h>

#include <QCoreApplication>

#include <utility>

// What the host does, from outside or inside of a hook.

namespace
{

constexpr int g_iDepthAtMost = 3;

} // namespace

void CMonkey::OnHook()
{
    ++m_tally.m_lHooks;
    if (m_iDepth >= g_iDepthAtMost || !m_random.OneIn(3))
        return;
    ++m_tally.m_lHookActions;
    const CDepth depth(m_iDepth);
    DoHostOperation();
}

void CMonkey::DoHostOperation()
{
    sPanel& panel = m_random.AnyOf(m_aPanels);
    if (!panel.m_pController || !panel.m_pView)
    {
        if (m_random.OneIn(3))
            Restore(panel);
        return;
    }
    switch (m_random.Below(26))
    {
    case 0:
        return m_random.OneIn(4) ? DropController(panel) : RebuildTree(panel);
    case 1:
        return m_random.OneIn(4) ? DropView(panel) : RebuildTree(panel);
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 7:
        return ChangeRows(panel);
    case 8:
    case 9:
    case 10:
        return ChangeTree(panel);
    case 11:
    case 12:
    case 13:
        return ChangeValues(panel);
    case 14:
    case 15:
    case 16:
        return Dirtify(panel);
    case 17:
    case 18:
    case 19:
    case 20:
        return ChangeLayout(panel);
    case 21:
        return RunEvents();
    default:
        return MoveEditing(panel);
    }
}

void CMonkey::ChangeRows(sPanel& panel)
{
    CMonkeyController& controller = *panel.m_pController;
    switch (m_random.Below(10))
    {
    case 0:
        return controller.ClearAllData();
    case 1:
        controller.ClearAllData();
        return panel.m_pController ? FillPanel(panel) : void();
    case 2:
        return controller.RemoveItem(RandomElement(controller));
    case 3:
        controller.RemoveItem(RandomElement(controller));
        return RebuildTree(panel);
    case 4:
        // As when a toolkit parent of the host takes the control along.
        if (m_iDepth == 0)
            delete RandomControl(controller);
        return;
    case 5:
        return controller.ConnectDataElements();
    default:
        return AddRow(panel);
    }
}

void CMonkey::ChangeTree(sPanel& panel)
{
    CMonkeyView& view = *panel.m_pView;
    const CDepth inView(m_iInView);
    switch (m_random.Below(6))
    {
    case 0:
        return view.RemoveEmptyGroups();
    case 1:
    case 2:
        view.AddGroup(RandomText(), nullptr);
        return;
    case 3:
        view.AddSingleLineContainer(RandomText(), RandomRequest(), nullptr);
        return;
    case 4:
        return view.RemoveAll();
    default:
        return RebuildTree(panel);
    }
}

void CMonkey::ChangeValues(sPanel& panel)
{
    CMonkeyController::CRecord* record = RandomRecord(*panel.m_pController);
    if (!record)
        return;
    record->m_pElement->SetReadOnly(m_random.OneIn(4));
    const char* text = RandomText();
    if (auto* simple = dynamic_cast<CSimpleDataElement*>(record->m_pElement))
        simple->SetStrCurrentValue(text ? text : std::string("a\0b", 3));
    if (auto* boolean = dynamic_cast<CBoolDataElement*>(record->m_pElement))
        boolean->SetValue(Coin());
    if (auto* choice = dynamic_cast<CEnumDataElement*>(record->m_pElement))
        ChangeDefinition(*choice);
    if (auto* choice = dynamic_cast<CQTEnumDataWidget*>(record->m_pWidget))
        choice->SetEnumSortingMethod(m_random.Between(-1, 4));
    if (m_random.OneIn(20))
        CQTTextEncoding::SetEncoding(Coin() ? CQTTextEncoding::eTextEncodingLatin1
                                            : CQTTextEncoding::eTextEncodingUtf8);
    if (record->m_pWidget)
        record->m_pElement->UpdateData();
}

void CMonkey::Dirtify(sPanel& panel)
{
    CMonkeyController& controller = *panel.m_pController;
    CMonkeyNotice* notice = m_random.OneIn(3) ? nullptr : new CMonkeyNotice(*this);
    CMonkeyController::CRecord* record = RandomRecord(controller);
    if (record && !m_random.OneIn(4))
        controller.DirtifyItem(record, notice);
    else
        controller.DirtifyController(notice);
    if (m_random.OneIn(5))
        controller.HandleDirtyItems();
}

void CMonkey::ChangeLayout(sPanel& panel)
{
    CMonkeyView& view = *panel.m_pView;
    const CDepth inView(m_iInView);
    switch (m_random.Below(8))
    {
    case 0:
        return panel.m_pController->SetPreviewMode(m_random.OneIn(3));
    case 1:
        return view.ShowContent(!m_random.OneIn(8), Coin());
    case 2:
        return view.SetPreviewMessage(m_random.OneIn(4) ? "A message" : "", QColor(Qt::red));
    case 3:
        return view.RecomputeLayout();
    case 4:
        // Both directions of the link may point at the other panel for a while.
        panel.m_pController->SetInspectorView(&view);
        return m_aPanels[0].m_pView && m_random.OneIn(5)
                   ? panel.m_pController->SetInspectorView(m_aPanels[0].m_pView)
                   : void();
    default:
        return view.ResizeInspector(RandomSize(), RandomSize());
    }
}

void CMonkey::MoveEditing(sPanel& panel)
{
    CMonkeyController& controller = *panel.m_pController;
    CInspectorDataWidget* from = m_random.OneIn(5) ? nullptr : RandomControl(controller);
    switch (m_random.Below(6))
    {
    case 0:
        return controller.GiveFocusToNextElement(from);
    case 1:
        return controller.GiveFocusToPrevElement(from);
    default:
        return from ? from->StartEditing() : void();
    }
}

void CMonkey::RunEvents()
{
    // A handler that paints must not run events; one that was called by events is enough.
    if (m_iPainting > 0 || m_iInEvents > 1)
        return;
    const CDepth inEvents(m_iInEvents);
    QCoreApplication::processEvents();
}

void CMonkey::Restore(sPanel& panel)
{
    if (!panel.m_pController)
        panel.m_pController = new CMonkeyController(*this);
    if (!panel.m_pView)
    {
        panel.m_pView = new CMonkeyView(*this);
        panel.m_pView->setParent(&panel.m_window);
        panel.m_pView->show();
    }
    panel.m_pController->SetInspectorView(panel.m_pView);
    panel.m_pView->SetController(panel.m_pController);
    RebuildTree(panel);
}

void CMonkey::DropController(sPanel& panel)
{
    delete std::exchange(panel.m_pController, nullptr);
}

void CMonkey::DropView(sPanel& panel)
{
    // No toolkit survives the death of a window part that is at work.
    if (m_iPainting == 0 && m_iInView == 0)
        delete std::exchange(panel.m_pView, nullptr);
}
