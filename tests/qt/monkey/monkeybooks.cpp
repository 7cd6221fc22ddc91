#include "monkey.h"

#include <inspector/qt/inplaceedit.h>
#include <inspector/qt/inplacelist.h>

#include <qttextencoding.h>

#include <QCoreApplication>
#include <QEvent>

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

// A run, and what must hold after every step of it.

CMonkey::CMonkey(unsigned seed) : m_random(seed)
{
    for (const char* value : {"a", "b", "c"})
    {
        m_sharedDefinition.m_mapDisplay[value] = value;
        m_sharedDefinition.m_vEntries.emplace_back(value, value);
    }
    for (sPanel& panel : m_aPanels)
    {
        panel.m_window.resize(360, 400);
        panel.m_window.show();
        Restore(panel);
        panel.m_pView->ResizeInspector(300, 300);
        FillPanel(panel);
    }
}

CMonkey::~CMonkey()
{
    m_iDepth = 100; // The host only watches from here on.
    for (sPanel& panel : m_aPanels)
    {
        delete std::exchange(panel.m_pController, nullptr);
        delete std::exchange(panel.m_pView, nullptr);
    }
    TakeLateNotices();
    EXPECT_EQ(m_tally.m_iElements, 0);
    EXPECT_TRUE(m_tally.m_setWidgets.empty());
    EXPECT_EQ(m_tally.m_iPayloads, 0);
    EXPECT_TRUE(m_tally.m_setNotices.empty());
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
}

void CMonkey::Step()
{
    ++m_lSteps;
    if (m_random.OneIn(3))
        DoHostOperation();
    else
        DoUserEvent();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Check();
}

std::string CMonkey::Describe() const
{
    std::ostringstream out;
    out << m_lSteps << " steps, " << m_tally.m_lHooks << " hooks, " << m_tally.m_lHookActions
        << " operations inside of hooks, " << m_tally.m_lReports << " ends of edits, "
        << m_tally.m_lDeliveries << " deliveries";
    return out.str();
}

bool CMonkey::eventFilter(QObject* watched, QEvent* event)
{
    // A child of a window that is hidden is only shown to its parent.
    const bool isWindow = static_cast<QWidget*>(watched)->isWindow();
    if (event->type() != (isWindow ? QEvent::Show : QEvent::ShowToParent) || event->spontaneous())
        return false;
    for (sEditing* editing : {&m_line, &m_list})
    {
        if (watched != editing->m_pEditor)
            continue;
        auto& starting = editing->m_vStarting;
        if (starting.empty())
        {
            ADD_FAILURE() << "an editor came up that nobody asked for";
            continue;
        }
        // One that is still coming up has nothing to report yet.
        EXPECT_TRUE(!editing->m_pOpen ||
                    std::find(starting.begin(), starting.end(), editing->m_pOpen) != starting.end())
            << "an editor came up before its last end was reported";
        editing->m_pOpen = starting.back();
    }
    return false;
}

void CMonkey::WatchEditors()
{
    const auto watch = [this](sEditing& editing, QWidget* editor)
    {
        if (editor && editor != editing.m_pEditor)
            editor->installEventFilter(this);
        editing.m_pEditor = editor;
    };
    watch(m_line, CQTSimpleDataWidget::g_pInPlace);
    watch(m_list, CQTEnumDataWidget::g_pInPlaceList.get());
}

void CMonkey::Check()
{
    std::size_t rows = 0;
    std::size_t widgets = 0;
    int payloads = 0;
    std::size_t notices = 0;
    for (const sPanel& panel : m_aPanels)
    {
        if (!panel.m_pController)
            continue;
        const CMonkeyController& controller = *panel.m_pController;
        rows += controller.m_lItems.size();
        for (const auto* record : controller.m_lItems)
        {
            widgets += record->m_pWidget != nullptr;
            payloads += record->m_pData != nullptr;
        }
        for (const auto& [record, queue] : controller.m_mapDirtyItems)
            notices += queue.size();
        const auto& dirt = controller.m_vControllerDirt;
        notices += dirt.size() - std::count(dirt.begin(), dirt.end(), nullptr);
        CheckPanel(panel);
    }
    TakeLateNotices();
    EXPECT_EQ(m_tally.m_iElements, static_cast<int>(rows));
    EXPECT_EQ(m_tally.m_setWidgets.size(), widgets);
    EXPECT_EQ(m_tally.m_iPayloads, payloads);
    EXPECT_EQ(m_tally.m_setNotices.size(), notices);
    EXPECT_EQ(CQTSimpleDataWidget::g_iInPlaceRefCount, m_tally.m_iFields);
    EXPECT_EQ(CQTSimpleDataWidget::g_pInPlace != nullptr, m_tally.m_iFields > 0);
    const long owners = m_tally.m_iLists > 0 ? m_tally.m_iLists + 1 : 0;
    EXPECT_EQ(CQTEnumDataWidget::g_pInPlaceList.use_count(), owners);
    CheckEditing(m_line, "line editor");
    CheckEditing(m_list, "list");
}

void CMonkey::CheckPanel(const sPanel& panel)
{
    const CMonkeyController& controller = *panel.m_pController;
    for (const auto& [record, queue] : controller.m_mapDirtyItems)
        EXPECT_EQ(std::count(controller.m_lItems.begin(), controller.m_lItems.end(), record), 1)
            << "a notice waits for a row that is gone";
    if (!panel.m_pView)
        return;
    const CMonkeyView& view = *panel.m_pView;
    EXPECT_TRUE(std::includes(view.m_setHolders.begin(), view.m_setHolders.end(),
                              view.m_setControlHolders.begin(), view.m_setControlHolders.end()));
    for (const auto* holder : view.m_setControlHolders)
        EXPECT_TRUE(!holder->GetWidget() || m_tally.m_setWidgets.count(holder->GetWidget()) == 1)
            << "the view holds a dead control";
}

void CMonkey::CheckEditing(const sEditing& editing, const char* name)
{
    const bool isVisible = editing.m_pEditor && !editing.m_pEditor->isHidden();
    EXPECT_TRUE(isVisible || !editing.m_pOpen) << "the end of an edit was lost: " << name;
}

void CMonkey::TakeLateNotices()
{
    std::set<const void*> queued;
    for (const sPanel& panel : m_aPanels)
    {
        if (!panel.m_pController)
            continue;
        for (const auto& [record, queue] : panel.m_pController->m_mapDirtyItems)
            queued.insert(queue.begin(), queue.end());
        const auto& dirt = panel.m_pController->m_vControllerDirt;
        queued.insert(dirt.begin(), dirt.end());
    }
    const std::set<CMonkeyNotice*> notices = m_tally.m_setNotices;
    for (CMonkeyNotice* notice : notices)
    {
        const CMonkeyController::CNotice* base = notice;
        if (notice->m_bLate && queued.count(base) == 0)
            delete notice;
    }
}
