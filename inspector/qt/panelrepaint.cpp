#include "panelrepaint.h"

#include <utility>

namespace
{

const QWidget* g_pPlacedContent = nullptr;
const CPaintAhead* g_pPaintAhead = nullptr;

/// Whether all that shows of a control is painted when its panel is: nothing opaque, which the
/// panel leaves out, no window of its own and nothing that reaches beyond it.
bool IsPaintedWithPanel(const QWidget& control)
{
    return !control.testAttribute(Qt::WA_OpaquePaintEvent) && control.children().isEmpty() &&
           !control.autoFillBackground() && !control.internalWinId() && !control.graphicsEffect();
}

/// A widget's area in its own coordinates; its width and height may be more than the toolkit's own
/// rectangle can tell.
QRect AreaOf(const QWidget& widget)
{
    return QRect(QPoint(0, 0), widget.geometry().bottomRight() - widget.pos());
}

/// Takes a control out of the toolkit's view while its geometry changes: everything happens as
/// always, but no part of the screen is marked for a repaint.
class CUnseen
{
public:
    explicit CUnseen(QWidget& control) : m_rControl(control)
    {
        m_rControl.setAttribute(Qt::WA_OutsideWSRange, true);
    }
    ~CUnseen() { m_rControl.setAttribute(Qt::WA_OutsideWSRange, false); }
    CUnseen(const CUnseen&) = delete;
    CUnseen& operator=(const CUnseen&) = delete;

private:
    QWidget& m_rControl;
};

bool IsPlacedQuietly(const QWidget& control)
{
    return g_pPlacedContent && control.parentWidget() == g_pPlacedContent &&
           IsPaintedWithPanel(control);
}

} // namespace

CWholePlacement::CWholePlacement(QWidget& panel, const QWidget* content)
    : m_pPanel(&panel), m_pOuter(std::exchange(g_pPlacedContent, content))
{
}

CWholePlacement::~CWholePlacement()
{
    g_pPlacedContent = m_pOuter;
    if (m_pPanel)
        m_pPanel->update();
}

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

void MoveControl(QWidget& control, const QPoint& place)
{
    if (control.pos() == place || !IsPlacedQuietly(control))
    {
        control.move(place);
        return;
    }
    const CUnseen unseen(control);
    control.move(place);
}

void ResizeControl(QWidget& control, const QSize& size)
{
    if (control.size() == size || !IsPlacedQuietly(control))
    {
        control.resize(size);
        return;
    }
    const CUnseen unseen(control);
    control.resize(size);
}

void RepaintControl(QWidget& control)
{
    const QWidget* content = control.isWindow() ? nullptr : control.parentWidget();
    const bool isCut =
        content && !control.graphicsEffect() && !AreaOf(*content).intersects(control.geometry());
    if (!isCut && !(g_pPaintAhead && g_pPaintAhead->Covers(control)))
        control.update();
}
