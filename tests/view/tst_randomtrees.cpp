// Random trees against a second computation of the layout, and against what must hold of any.

#include "randomtree.h"

#include <support/rowname.h>

#include <gtest/gtest.h>

#include <set>

namespace
{

struct sSeries
{
    const char* m_szName;
    eRandomNumbers m_eNumbers;
    unsigned m_uTrees;
};

class RandomTrees : public testing::TestWithParam<sSeries>
{
};

const sSeries g_series[] = {
    {"UsualNumbers", eNumbersUsual, 1500},
    {"NumbersAroundZero", eNumbersSmall, 1500},
    {"AnyNumbersOf32Bits", eNumbersHuge, 1500},
};

/// Rows that follow each other in the tree follow each other on the screen, inside their parents.
void CheckStack(const std::vector<sReferenceNode>& expected,
                const std::list<CInspectorView::sInspectorElement>& nodes, int left, int right,
                int top)
{
    auto reference = expected.begin();
    int y = top;
    for (const auto& node : nodes)
    {
        EXPECT_EQ(node.m_iY, y);
        EXPECT_EQ(node.m_iX, left);
        EXPECT_EQ(node.m_iX + node.m_iWidth, right);
        EXPECT_EQ(node.m_lChildren.size(), reference->m_vChildren.size());
        if (node.m_pHolder)
        {
            const auto& holder = *node.m_pHolder;
            EXPECT_EQ(holder.m_iX, node.m_iX + node.m_iLabelWidth);
            EXPECT_EQ(holder.m_iX + holder.m_iWidth, right);
            EXPECT_EQ(holder.m_iY, node.m_iY);
            EXPECT_EQ(holder.m_iHeight, node.m_iHeight);
        }
        else if (!node.m_lChildren.empty())
            CheckStack(reference->m_vChildren, node.m_lChildren, left + 5, right - 5,
                       y + 5 + (node.m_sName.empty() ? 0 : 10));
        y += node.m_iHeight + 5;
        ++reference;
    }
}

/// The controls of a line stand side by side, two pixels apart, within their bounds as long as
/// these are not upside down.
void CheckLine(const CInspectorView::sInspectorElement& line, const sReferenceNode& expected)
{
    int x = line.m_pHolder->m_iX;
    auto reference = expected.m_vControls.begin();
    for (const auto* control : line.m_pHolder->m_lChildren)
    {
        EXPECT_EQ(control->m_iX, x);
        int min = reference->m_pRequest ? reference->m_pRequest->Min(line.m_iWidth) : -1;
        int max = reference->m_pRequest ? reference->m_pRequest->Max(line.m_iWidth) : -1;
        min = min == -1 ? reference->m_iRequiredWidth : min;
        min = min == -1 ? 0 : min;
        max = max == -1 ? line.m_iWidth : max;
        if (min <= max)
        {
            EXPECT_GE(control->m_iWidth, min);
            EXPECT_LE(control->m_iWidth, max);
        }
        x += control->m_iWidth + 2;
        ++reference;
    }
}

void CheckLines(const std::vector<sReferenceNode>& expected,
                const std::list<CInspectorView::sInspectorElement>& nodes)
{
    auto reference = expected.begin();
    for (const auto& node : nodes)
    {
        if (reference->m_eKind == eReferenceContainerRow)
            CheckLine(node, *reference);
        CheckLines(reference->m_vChildren, node.m_lChildren);
        ++reference;
    }
}

} // namespace

TEST_P(RandomTrees, AreLaidOutAsTheSecondComputationSays)
{
    const unsigned first = 1000003u * static_cast<unsigned>(GetParam().m_eNumbers);
    std::size_t nodes = 0;
    std::size_t previews = 0;
    for (unsigned seed = first; seed < first + GetParam().m_uTrees; ++seed)
    {
        CRandomTree tree(seed, GetParam().m_eNumbers);
        nodes += tree.m_view.m_setHolders.size();
        for (int layout = 0; layout < 4; ++layout)
        {
            tree.Layout();
            previews += tree.m_reference.m_bPreview ? 1 : 0;
            const std::string difference = tree.Compare();
            ASSERT_EQ(difference, "") << "seed " << seed << ", layout " << layout << "\n"
                                      << tree.Describe();
        }
    }
    EXPECT_GT(nodes, 5u * GetParam().m_uTrees);
    EXPECT_GT(previews, GetParam().m_uTrees);
}

TEST_P(RandomTrees, GiveTheSameInASecondLayout)
{
    for (unsigned seed = 0; seed < 100; ++seed)
    {
        CRandomTree tree(seed, GetParam().m_eNumbers);
        tree.Layout();
        if (tree.m_reference.m_bPreview)
            continue;
        const CCalls first = tree.m_log.Take();
        tree.m_view.RecomputeLayout();
        ASSERT_EQ(tree.m_log.Take(), first) << "seed " << seed;
    }
}

INSTANTIATE_TEST_SUITE_P(Series, RandomTrees, testing::ValuesIn(g_series), sRowName());

TEST(RandomTree, KeepsRowsStackedAndLinesInOrder)
{
    for (unsigned seed = 500000; seed < 500600; ++seed)
    {
        CRandomTree tree(seed, eNumbersUsual);
        tree.m_view.m_iInspectorWidth = 1000;
        tree.m_view.m_metrics = sReferenceMetrics();
        tree.m_view.RecomputeLayout();
        SCOPED_TRACE("seed " + std::to_string(seed));
        CheckStack(tree.m_reference.m_vNodes, tree.m_view.m_lElements, 5, 995, 5);
        CheckLines(tree.m_reference.m_vNodes, tree.m_view.m_lElements);
        if (HasFailure())
            FAIL() << tree.Describe();
    }
}

TEST(RandomTree, GivesTheRowsOfARunOneLabelWidth)
{
    std::size_t runs = 0;
    for (unsigned seed = 600000; seed < 600300; ++seed)
    {
        CRandomTree tree(seed, eNumbersUsual);
        tree.m_view.m_bAlignLabels = true;
        tree.m_view.m_iInspectorWidth = 400;
        tree.m_view.RecomputeLayout();
        std::set<int> widths;
        std::size_t rows = 0;
        for (const auto& node : tree.m_view.m_lElements)
        {
            if (!node.m_pHolder)
                continue;
            ++rows;
            if (!node.m_pHolder->m_pRequest || node.m_pHolder->m_pRequest->m_iOptions % 2 == 0)
                widths.insert(node.m_iLabelWidth);
        }
        if (rows < 2)
            continue;
        ++runs;
        EXPECT_LE(widths.size(), 1u) << "seed " << seed << "\n" << tree.Describe();
    }
    EXPECT_GT(runs, 50u);
}
