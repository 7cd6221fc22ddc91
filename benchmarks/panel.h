#pragma once

#include "rowplan.h"

#include <QWidget>

#include <memory>
#include <string>
#include <vector>

constexpr int g_iPanelWidth = 400;
constexpr int g_iPanelHeight = 800;

/// One way to show a panel: what every twin can do, and the tasks time.
///
/// Nothing is painted before Paint is called, so that layout and painting can be timed apart.
class CPanel
{
public:
    virtual ~CPanel() = default;

    virtual QWidget& Window() = 0;
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
    /// Removes a row by the number it was filled with; each at most once.
    virtual void RemoveRow(int row) = 0;
    /// Removes all rows.
    virtual void Clear() = 0;
    /// Moves the keyboard from the row that has it (at first: none) to the next.
    virtual void GoToNextRow() = 0;

    /// Paints what is waiting to be painted, as the event loop would.
    void Paint();
};

/// The library of this project.
std::unique_ptr<CPanel> MakeInspectorPanel();
/// What a host writes by hand: a scroll area with forms of real editors in group boxes.
std::unique_ptr<CPanel> MakeFormPanel();
/// A tree view with a model and a delegate: no widget per row.
std::unique_ptr<CPanel> MakeTreePanel();

/// The value that a row gets in a round; of the kind of the row's first value.
std::string NextValue(const sPlannedRow& row, int round);
