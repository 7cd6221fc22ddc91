#include "panelrepaint.h"

#include <qtinspectorview.h>

#include "paintedwithpanel.h"

#include <utility>

namespace
{

const CPaintAhead* g_pPaintAhead = nullptr;

/// A widget's area in its own coordinates; its width and height may be more than the toolkit's own
/// rectangle can tell.
QRect AreaOf(const QWidget& widget)
{
    return QRect(QPoint(0, 0), widget.geometry().bottomRight() - widget.pos());
}

/// The panel that paints a control when a part of it is to be painted, at once and not after a
/// paint event that is under way; null when the control must ask for itself.
QWidget* FindPaintingPanel(const QWidget& control)
{
    auto* panel = qobject_cast<CQTInspectorView*>(control.parentWidget()->parentWidget());
    const bool isReady = panel && !panel->testAttribute(Qt::WA_WState_InPaintEvent) &&
                         control.isVisible() && control.updatesEnabled() &&
                         IsPaintedWithPanel(control);
    return isReady ? panel : nullptr;
}

} // namespace

CPaintAhead::CPaintAhead(const QWidget* content, const QRegion& region)
    : m_pContent(content), m_region(region.translated(-content->pos())),
      m_pOuter(std::exchange(g_pPaintAhead, this))
{
}

CPaintAhead::~CPaintAhead()
{
    g_pPaintAhead = m_pOuter;
}

bool CPaintAhead::Covers(const QWidget& control) const
{
    if (control.parentWidget() != m_pContent || !IsPaintedWithPanel(control))
        return false;
    const QRect seen = control.geometry() & AreaOf(*m_pContent);
    return (QRegion(seen) - m_region).isEmpty();
}

bool CPaintAhead::IsUnderWay()
{
    return g_pPaintAhead != nullptr;
}

void RepaintControl(QWidget& control)
{
    const QWidget* content = control.isWindow() ? nullptr : control.parentWidget();
    if (!content)
    {
        control.update();
        return;
    }
    const QRect seen = control.geometry() & AreaOf(*content);
    const bool isCut = seen.isEmpty() && !control.graphicsEffect();
    if (isCut || (g_pPaintAhead && g_pPaintAhead->Covers(control)))
        return;
    if (QWidget* panel = FindPaintingPanel(control))
        panel->update(seen.translated(content->pos()));
    else
        control.update();
}
