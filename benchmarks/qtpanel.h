#pragma once

#include "panel.h"

#include <QWidget>

#include <memory>

/// A panel that is a window of Qt.
class CQtPanel : public CPanel
{
public:
    virtual QWidget& Window() = 0;
    void Paint() override;
};

/// The library of this project.
std::unique_ptr<CPanel> MakeInspectorPanel();
/// What a host writes by hand: a scroll area with forms of real editors in group boxes.
std::unique_ptr<CPanel> MakeFormPanel();
/// A tree view with a model and a delegate: no widget per row.
std::unique_ptr<CPanel> MakeTreePanel();
