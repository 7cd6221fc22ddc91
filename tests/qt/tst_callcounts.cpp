#include <inspectorcontroller.h>
#include <qtinspectorview.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTest>

#include <string>
#include <vector>

// How often a panel calls its host for one layout, one scroll step and one flush, at two sizes:
// what grows with the rows grows by the stated calls, and what is seen does not grow at all.

namespace
{

struct sCounts
{
    int m_iWidths = 0;
    int m_iHeights = 0;
    int m_iMoves = 0;
    int m_iResizes = 0;
    int m_iLabels = 0;
    int m_iPaints = 0;
    int m_iUnseenPaints = 0;
    int m_iChanges = 0;
    int m_iPanelPaints = 0;
};

class CCountingField : public CQTSimpleDataWidget
{
public:
    explicit CCountingField(sCounts& counts) : m_rCounts(counts) {}

    int GetRequiredWidth() override
    {
        ++m_rCounts.m_iWidths;
        return CQTSimpleDataWidget::GetRequiredWidth();
    }

    int GetRequiredHeight(int width) override
    {
        ++m_rCounts.m_iHeights;
        return CQTSimpleDataWidget::GetRequiredHeight(width);
    }

    void MoveWidget(int x, int y) override
    {
        ++m_rCounts.m_iMoves;
        CQTSimpleDataWidget::MoveWidget(x, y);
    }

    void ResizeWidget(int width, int height) override
    {
        ++m_rCounts.m_iResizes;
        CQTSimpleDataWidget::ResizeWidget(width, height);
    }

    void OnValueChange(sValueChangeInfo* info) override
    {
        ++m_rCounts.m_iChanges;
        CQTSimpleDataWidget::OnValueChange(info);
    }

    bool IsSeen() const { return parentWidget()->rect().intersects(geometry()); }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++m_rCounts.m_iPaints;
        m_rCounts.m_iUnseenPaints += !IsSeen();
        CQTSimpleDataWidget::paintEvent(event);
    }

private:
    sCounts& m_rCounts;
};

class CCountingView : public CQTInspectorView
{
public:
    explicit CCountingView(sCounts& counts) : m_rCounts(counts) {}

    int GetElementLabelWidth(sInspectorElement* element) override
    {
        ++m_rCounts.m_iLabels;
        return CQTInspectorView::GetElementLabelWidth(element);
    }

    QScrollBar& GetScrollBar() { return *m_pScrollBar; }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++m_rCounts.m_iPanelPaints;
        CQTInspectorView::paintEvent(event);
    }

private:
    sCounts& m_rCounts;
};

class CRefreshingController : public CInspectorController
{
public:
    void BuildInspector() override {}
    void RefreshInspector() override {}
    void HandleDirtyItem(sInspectorControllerData* record, IDirtyControllerDataInfo*) override
    {
        record->m_pElement->UpdateData();
    }
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override {}

    void DirtifyAll()
    {
        for (sInspectorControllerData* record : m_lItems)
            DirtifyItem(record, nullptr);
    }
};

/// A shown panel of text rows in groups of 20, painted once.
class CCountedPanel
{
public:
    explicit CCountedPanel(int rows) : m_view(m_counts)
    {
        m_controller.SetInspectorView(&m_view);
        m_view.SetController(&m_controller);
        CInspectorView::sInspectorElement* group = nullptr;
        for (int i = 0; i < rows; ++i)
        {
            if (i % 20 == 0)
                group = m_view.AddGroup("Group", nullptr);
            auto* element = new CSimpleDataElement;
            auto* field = new CCountingField(m_counts);
            m_controller.AddItem(element, field, nullptr);
            m_view.AddElement(element, field, std::to_string(i).c_str(), nullptr, group);
            m_vFields.push_back(field);
        }
        m_controller.ConnectDataElements();
        m_view.ResizeInspector(300, 400);
        m_view.show();
        m_bExposed = QTest::qWaitForWindowExposed(&m_view);
        QCoreApplication::processEvents();
    }

    /// What was called since the last question, with everything painted.
    sCounts Take()
    {
        // A second frame would show here.
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        const sCounts counts = m_counts;
        m_counts = sCounts();
        return counts;
    }

    int CountSeen() const
    {
        int seen = 0;
        for (const CCountingField* field : m_vFields)
            seen += field->IsSeen();
        return seen;
    }

    sCounts m_counts;
    CCountingView m_view;
    CRefreshingController m_controller;
    std::vector<CCountingField*> m_vFields;
    bool m_bExposed = false;
};

class CallCounts : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_panel.m_bExposed);
        ASSERT_GT(m_panel.m_view.GetScrollBar().maximum(), 200);
    }

    const int m_iRows = GetParam();
    CCountedPanel m_panel{m_iRows};
};

} // namespace

TEST_P(CallCounts, FillingAsksEveryRowOnceAndPaintsOnlyWhatIsSeen)
{
    const sCounts counts = m_panel.Take();

    EXPECT_EQ(counts.m_iWidths, m_iRows);
    EXPECT_EQ(counts.m_iHeights, m_iRows);
    EXPECT_EQ(counts.m_iLabels, m_iRows);
    // The layout places a control and scrolls it; the end of ResizeInspector scrolls it again.
    EXPECT_EQ(counts.m_iMoves, 3 * m_iRows);
    EXPECT_EQ(counts.m_iResizes, m_iRows);
    EXPECT_EQ(counts.m_iUnseenPaints, 0);
    EXPECT_LE(counts.m_iPaints, 2 * m_panel.CountSeen());
}

TEST_P(CallCounts, AChangeOfWidthAsksEveryRowOnceAndPaintsEachSeenControlOnce)
{
    m_panel.Take();

    m_panel.m_view.ResizeInspector(320, 400);

    const sCounts counts = m_panel.Take();
    EXPECT_EQ(counts.m_iWidths, m_iRows);
    EXPECT_EQ(counts.m_iHeights, m_iRows);
    EXPECT_EQ(counts.m_iLabels, m_iRows);
    EXPECT_EQ(counts.m_iMoves, 3 * m_iRows);
    EXPECT_EQ(counts.m_iResizes, m_iRows);
    EXPECT_EQ(counts.m_iUnseenPaints, 0);
    EXPECT_LE(counts.m_iPaints, 2 * m_panel.CountSeen());
}

TEST_P(CallCounts, AScrollStepMovesEveryControlOnceAndPaintsEachSeenControlOnce)
{
    m_panel.Take();

    m_panel.m_view.GetScrollBar().setValue(110);

    const sCounts counts = m_panel.Take();
    EXPECT_EQ(counts.m_iMoves, m_iRows);
    EXPECT_EQ(counts.m_iResizes, 0);
    EXPECT_EQ(counts.m_iWidths, 0);
    EXPECT_EQ(counts.m_iHeights, 0);
    EXPECT_EQ(counts.m_iLabels, 0);
    EXPECT_EQ(counts.m_iUnseenPaints, 0);
    EXPECT_EQ(counts.m_iPaints, m_panel.CountSeen());
    EXPECT_EQ(counts.m_iPanelPaints, 1);
}

TEST_P(CallCounts, AFlushOfAllRowsPaintsEachSeenControlOnce)
{
    m_panel.Take();

    m_panel.m_controller.DirtifyAll();

    const sCounts counts = m_panel.Take();
    EXPECT_EQ(counts.m_iChanges, m_iRows);
    EXPECT_EQ(counts.m_iMoves, 0);
    EXPECT_EQ(counts.m_iUnseenPaints, 0);
    EXPECT_EQ(counts.m_iPaints, m_panel.CountSeen());
    EXPECT_EQ(counts.m_iPanelPaints, 1);
}

TEST_P(CallCounts, AChangeNobodySeesPaintsNothing)
{
    m_panel.Take();

    m_panel.m_vFields.back()->OnValueChange(nullptr);

    const sCounts counts = m_panel.Take();
    EXPECT_EQ(counts.m_iPaints, 0);
    EXPECT_EQ(counts.m_iPanelPaints, 0);
}

TEST_P(CallCounts, AChangeOfOneSeenRowPaintsThatControlOnce)
{
    m_panel.Take();

    m_panel.m_vFields.front()->OnValueChange(nullptr);

    EXPECT_EQ(m_panel.Take().m_iPaints, 1);
}

INSTANTIATE_TEST_SUITE_P(Sizes, CallCounts, testing::Values(40, 400));
