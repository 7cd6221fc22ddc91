#include "controlplacement.h"

#include "paintedwithpanel.h"
#include "panelcontent.h"

#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>

#include <utility>

namespace
{

CWholePlacement* g_pPlacement = nullptr;

/// Whether a control draws nothing but what it was told to show, which is repainted when it
/// changes. Others may read their element, or where they are, while they paint.
bool LooksTheSameElsewhere(const QWidget& control)
{
    return typeid(control) == typeid(CQTSimpleDataWidget) ||
           typeid(control) == typeid(CQTSimpleBoolWidget);
}

/// Whether the toolkit need not be told of a change of geometry. Out of sight, it is told only of
/// what may have windows of its own; of what it has not created yet, it takes note by itself.
bool IsPlacedQuietly(const QWidget& control, bool isSeen)
{
    if (!control.testAttribute(Qt::WA_WState_Created))
        return true;
    return isSeen ? IsPaintedWithPanel(control)
                  : control.children().isEmpty() && !control.internalWinId();
}

/// Whether a control has its move and resize events when it is revealed, also if it is placed
/// alone.
bool WaitsQuietly(const QWidget& control)
{
    return IsToBeRevealed(control) && IsPlacedQuietly(control, false);
}

/// Notes what happens to a control as the toolkit does, which asks less often than it sets.
void Note(QWidget& control, Qt::WidgetAttribute what)
{
    if (!control.testAttribute(what))
        control.setAttribute(what);
}

/// The record that the toolkit keeps of where a control is. A control whose record is written moves
/// without a search for what it covers, and without events.
QRect& RecordOf(QWidget& control)
{
    return const_cast<QRect&>(control.geometry());
}

void MoveQuietly(QWidget& control, const QPoint& place)
{
    // Not moved by the way it goes, which may be more than 32 bits can tell.
    RecordOf(control) = QRect(place, control.size());
    Note(control, Qt::WA_Moved);
    Note(control, Qt::WA_PendingMoveEvent);
}

void ResizeQuietly(QWidget& control, const QSize& size)
{
    RecordOf(control).setSize(
        size.boundedTo(control.maximumSize()).expandedTo(control.minimumSize()));
    Note(control, Qt::WA_Resized);
    Note(control, Qt::WA_PendingResizeEvent);
}

} // namespace

CWholePlacement::CWholePlacement(QWidget& panel, const QWidget* content, int shift)
    : m_pPanel(&panel), m_pContent(content), m_pOuter(std::exchange(g_pPlacement, this)),
      m_iShift(shift)
{
}

CWholePlacement::~CWholePlacement()
{
    g_pPlacement = m_pOuter;
    if (m_pPanel && !m_bPixelsMoved)
        m_pPanel->update();
    for (const QPointer<QWidget>& control : m_vRevealed)
    {
        if (m_pPanel && control && IsToBeRevealed(*control) && control->isVisible() &&
            IsSeen(control->geometry()))
            RevealControl(*control);
    }
}

CWholePlacement* CWholePlacement::Of(const QWidget& control)
{
    const bool isPlaced =
        g_pPlacement && control.parentWidget() == g_pPlacement->m_pContent && !control.isWindow();
    return isPlaced ? g_pPlacement : nullptr;
}

bool CWholePlacement::IsSeen(const QRect& area) const
{
    return IsInSight(*m_pContent, area);
}

void CWholePlacement::Move(QWidget& control, const QPoint& place, bool isPlain)
{
    ++m_iMoves;
    const QRect before = control.geometry();
    const bool isSeen = IsSeen(before) || IsSeen(QRect(place, before.size()));
    const bool isThere = before.topLeft() == place && control.testAttribute(Qt::WA_Moved);
    const bool isQuiet = isThere || IsPlacedQuietly(control, isSeen);
    if (isSeen && m_iShift != 0)
        NoteMove(control, place - before.topLeft(), isQuiet);
    if (!isQuiet)
        control.move(place);
    else if (!isThere)
        MoveQuietly(control, place);
    // Also for a control that stays: the panel may have grown down to it.
    if (isQuiet && (isSeen || !isPlain))
        TellControl(control, before, isPlain);
}

void CWholePlacement::Resize(QWidget& control, const QSize& size, bool isPlain)
{
    const QRect before = control.geometry();
    if (before.size() == size && control.testAttribute(Qt::WA_Resized))
        return;
    const bool isSeen = IsSeen(before) || IsSeen(QRect(before.topLeft(), size));
    const bool isQuiet = IsPlacedQuietly(control, isSeen);
    if (isQuiet)
        ResizeQuietly(control, size);
    else
        control.resize(size);
    if (isQuiet && (isSeen || !isPlain))
        TellControl(control, before, isPlain);
}

void CWholePlacement::TellControl(QWidget& control, const QRect& before, bool isPlain)
{
    if (!isPlain || !IsToBeRevealed(control))
        SendOwedEvents(control, before);
    else if (IsSeen(control.geometry()))
        m_vRevealed.emplace_back(&control);
}

void CWholePlacement::NoteMove(const QWidget& control, const QPoint& way, bool isQuiet)
{
    m_bShifted = m_bShifted && isQuiet && way == QPoint(0, m_iShift);
    if (!LooksTheSameElsewhere(control))
        m_regionDrawnAnew += control.geometry().translated(way);
}

bool CWholePlacement::MovePixels(const QRect& area)
{
    if (!m_pPanel || m_iShift == 0 || !m_bShifted || m_iMoves != m_pContent->children().size())
        return false;
    m_bPixelsMoved = true;
    m_pPanel->scroll(0, m_iShift, area);
    m_pPanel->update(m_regionDrawnAnew.translated(m_pContent->pos()) & area);
    return true;
}

void MoveControl(QWidget& control, const QPoint& place, const std::type_info& type)
{
    if (CWholePlacement* placement = CWholePlacement::Of(control))
        placement->Move(control, place, typeid(control) == type);
    else if (WaitsQuietly(control))
        MoveQuietly(control, place);
    else
        control.move(place);
}

void ResizeControl(QWidget& control, const QSize& size, const std::type_info& type)
{
    if (CWholePlacement* placement = CWholePlacement::Of(control))
        placement->Resize(control, size, typeid(control) == type);
    else if (WaitsQuietly(control))
        ResizeQuietly(control, size);
    else
        control.resize(size);
}
