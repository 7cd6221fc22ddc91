#pragma once

#include "panelpainter.h"
#include "testpanel.h"

#include <support/images.h>

#include <QFontMetrics>

#include <gtest/gtest.h>

#include <string>

/// A panel of width 300 whose controls show nothing, so that the picture is the view's own.
struct sPaintedPanel : sTestPanel
{
    /// The picture of the view, on every kind of screen, is what the test paints.
    template <typename Paint>
    void Expect(const Paint& paint, int scroll = 0)
    {
        for (const qreal ratio : {1.0, 1.25, 1.5, 2.0})
        {
            SCOPED_TRACE("device pixel ratio " + std::to_string(ratio));
            const auto paintAll = [&](QPainter& painter)
            {
                CPanelPainter panel(painter, scroll);
                paint(panel);
            };
            images::ExpectSame(images::Render(m_view, ratio),
                               images::Paint(m_view, paintAll, ratio));
        }
    }

    /// The label column of a row.
    int LabelWidth(const char* text) const
    {
        const QRect bounds =
            QFontMetrics(m_view.font()).boundingRect(QRect(), 129, QString::fromLatin1(text));
        return bounds.width() + 2;
    }
};

/// A group with a row, a group with a row inside, and a row behind it.
struct sNestedPanel : sPaintedPanel
{
    sNestedPanel()
    {
        auto* outer = m_view.AddGroup("General", nullptr);
        AddRow("Size", 20, outer);
        auto* inner = m_view.AddGroup("Details", outer);
        AddRow("Radius", 20, inner);
        AddRow("Last", 20, nullptr);
    }

    void PaintTo(CPanelPainter& painter) const
    {
        painter.Group("General", 5, 5, 270, 103);
        painter.Text("Last", 5, 113, LabelWidth("Last"), 20);
        painter.Text("Size", 10, 24, LabelWidth("Size"), 20);
        painter.Group("Details", 10, 49, 260, 49);
        painter.Text("Radius", 15, 68, LabelWidth("Radius"), 20);
    }
};
