#include "autolayout.h"

#include <algorithm>
#include <map>
#include <set>

namespace
{

/// The grid: rows count upwards from the last consumers, columns from left to right.
class CGrid
{
public:
    explicit CGrid(const std::vector<sLayoutNode>& nodes)
    {
        for (const sLayoutNode& node : nodes)
            m_vById[node.m_iId] = &node;
        for (const sLayoutNode& node : nodes)
            for (const int input : node.m_vInputs)
                m_vConsumers[input].push_back(node.m_iId);
        for (const sLayoutNode& node : nodes)
            FindRow(node.m_iId);
        Lift();
        for (const sLayoutNode& node : nodes)
            if (m_vConsumers[node.m_iId].empty())
                PlaceEnd(node.m_iId);
    }

    int Row(int id) const { return m_vRows.at(id); }
    int Column(int id) const { return m_vColumns.at(id); }

private:
    // One above the highest consumer.
    int FindRow(int id)
    {
        const auto known = m_vRows.find(id);
        if (known != m_vRows.end())
            return known->second;
        int row = 0;
        for (const int consumer : m_vConsumers[id])
            row = std::max(row, FindRow(consumer) + 1);
        return m_vRows[id] = row;
    }

    // What waits far below all that feeds it, as an end beside a longer one does, comes up to it.
    void Lift()
    {
        std::vector<int> downwards;
        for (const auto& [id, node] : m_vById)
            downwards.push_back(id);
        std::stable_sort(downwards.begin(), downwards.end(),
                         [this](int left, int right) { return Row(left) > Row(right); });
        for (const int id : downwards)
        {
            int lowest = -1;
            for (const int input : Inputs(id))
                if (m_vById.count(input))
                    lowest = lowest < 0 ? Row(input) : std::min(lowest, Row(input));
            if (lowest > 0)
                m_vRows[id] = lowest - 1;
        }
    }

    bool IsPlaced(int id) const { return m_vColumns.count(id) != 0; }

    // An end that shares its inputs with a graph in place goes beside it, another one past it all.
    void PlaceEnd(int id)
    {
        int column = m_vColumns.empty() ? 0 : m_iColumnCount;
        int last = id;
        while (m_vById.count(last) && !IsPlaced(last) && !Inputs(last).empty())
            last = Inputs(last).front();
        if (IsPlaced(last))
            column = Column(last) + 1;
        PlaceChain(id, column, Row(id));
    }

    /// Places a node, its main input, the main input of that, and so on; and then what feeds their
    /// other inputs: the uppermost first, so that what is placed later never has to reach across.
    void PlaceChain(int first, int leastColumn, int lowestRow)
    {
        std::vector<int> chain;
        for (int id = first; m_vById.count(id) && !IsPlaced(id);)
        {
            chain.push_back(id);
            if (Inputs(id).empty())
                break;
            id = Inputs(id).front();
        }
        if (chain.empty())
            return;
        const int column = FindColumn(leastColumn, lowestRow, Row(chain.back()));
        for (const int id : chain)
            m_vColumns[id] = column;
        for (auto node = chain.rbegin(); node != chain.rend(); ++node)
            for (size_t pad = 1; pad < Inputs(*node).size(); ++pad)
                PlaceChain(Inputs(*node)[pad], column + 1, Row(*node) + 1);
    }

    // The first column whose cells are free from one row to the other; takes them.
    int FindColumn(int least, int lowestRow, int highestRow)
    {
        int column = least;
        while (!IsFree(column, lowestRow, highestRow))
            ++column;
        for (int row = lowestRow; row <= highestRow; ++row)
            m_vTaken.insert({column, row});
        m_iColumnCount = std::max(m_iColumnCount, column + 1);
        return column;
    }

    bool IsFree(int column, int lowestRow, int highestRow) const
    {
        const auto cell = m_vTaken.lower_bound({column, lowestRow});
        return cell == m_vTaken.end() || cell->first != column || cell->second > highestRow;
    }

    const std::vector<int>& Inputs(int id) const { return m_vById.at(id)->m_vInputs; }

    std::map<int, const sLayoutNode*> m_vById;
    std::map<int, std::vector<int>> m_vConsumers;
    std::map<int, int> m_vRows;
    std::map<int, int> m_vColumns;
    std::set<std::pair<int, int>> m_vTaken;
    int m_iColumnCount = 0;
};

/// Where each line of cells begins, from the largest size in each.
std::map<int, qreal> Starts(const std::map<int, qreal>& sizes, qreal between)
{
    std::map<int, qreal> starts;
    qreal next = 0;
    for (const auto& [line, size] : sizes)
    {
        starts[line] = next;
        next += size + between;
    }
    return starts;
}

} // namespace

QHash<int, QPointF> LayOutGraph(const std::vector<sLayoutNode>& nodes,
                                const sLayoutSpacing& spacing)
{
    const CGrid grid(nodes);
    // Rows are drawn from the top, so the last consumers have the largest number here.
    std::map<int, qreal> widths;
    std::map<int, qreal> heights;
    for (const sLayoutNode& node : nodes)
    {
        qreal& width = widths[grid.Column(node.m_iId)];
        width = std::max(width, node.m_size.width());
        qreal& height = heights[-grid.Row(node.m_iId)];
        height = std::max(height, node.m_size.height());
    }
    const std::map<int, qreal> lefts = Starts(widths, spacing.m_dBetweenColumns);
    const std::map<int, qreal> tops = Starts(heights, spacing.m_dBetweenRows);
    QHash<int, QPointF> places;
    for (const sLayoutNode& node : nodes)
    {
        const int column = grid.Column(node.m_iId);
        const int row = -grid.Row(node.m_iId);
        const qreal indent = (widths[column] - node.m_size.width()) / 2;
        places[node.m_iId] = QPointF(lefts.at(column) + indent, tops.at(row));
    }
    return places;
}
