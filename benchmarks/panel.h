#pragma once

#include "rowplan.h"

#include <string>
#include <vector>

constexpr int g_iPanelWidth = 400;
constexpr int g_iPanelHeight = 800;

/// One way to show a panel: what every twin can do, and the tasks time.
///
/// As far as the toolkit lets it, nothing is painted before Paint is called, so that layout and
/// painting can be timed apart.
class CPanel
{
public:
    virtual ~CPanel() = default;

    /// Creates the rows, lays them out and shows the window.
    virtual void Fill(const CRowPlan& plan) = 0;
    virtual void SetWidth(int width) = 0;
    /// In steps of about one row, from 0 on.
    virtual int GetScrollSteps() = 0;
    virtual void ScrollTo(int step) = 0;
    virtual int GetRowCount() = 0;
    /// Gives a row another value and has it shown; \p round makes it differ from the last one.
    virtual void ChangeValue(int row, int round) = 0;
    virtual void ChangeAllValues(int round) = 0;
    /// Removes rows one by one in this order, by the numbers they were filled with.
    virtual void RemoveRows(const std::vector<int>& rows) = 0;
    /// Removes all rows.
    virtual void Clear() = 0;
    /// Moves the keyboard from the row that has it (at first: none) to the next.
    virtual void GoToNextRow() = 0;

    /// Paints what is waiting to be painted, as the event loop would.
    virtual void Paint() = 0;
};

/// The value that a row gets in a round; of the kind of the row's first value.
std::string NextValue(const sPlannedRow& row, int round);
