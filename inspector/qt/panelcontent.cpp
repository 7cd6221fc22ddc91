#include "panelcontent.h"

#include "panelrepaint.h"

#include <qtbuttonwidget.h>
#include <qtenumdatawidget.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <qtstaticwidget.h>

#include <QAccessible>
#include <QCoreApplication>
#include <QMoveEvent>
#include <QPointer>
#include <QResizeEvent>
#include <QShowEvent>

#include <unordered_set>
#include <utility>
#include <vector>

namespace
{

template <typename... Widgets>
bool IsOneOf(const QWidget& control)
{
    return (... || (typeid(control) == typeid(Widgets)));
}

/// Whether nobody but the toolkit itself can tell that a control was not revealed.
bool CanWait(const QWidget& control)
{
    const bool isPlain = IsOneOf<CQTSimpleDataWidget, CQTSimpleBoolWidget, CQTEnumDataWidget,
                                 CQTButtonWidget, CQTStaticWidget>(control);
    return isPlain && control.children().isEmpty() && !control.isWindow() &&
           !control.testAttribute(Qt::WA_NativeWindow) && !control.internalWinId();
}

} // namespace

CPanelContent::CPanelContent(QWidget& panel) : QWidget(&panel)
{
    // It lies over labels and frames: what a style sheet fills all widgets with must not hide them.
    setAttribute(Qt::WA_NoSystemBackground);
    // Its size is the panel's business, not that of what lies in it.
    setAttribute(Qt::WA_Resized);
}

void CPanelContent::setVisible(bool visible)
{
    if (visible && isVisible())
        return;
    std::vector<QWidget*> waiting;
    const QObjectList before = children();
    for (QObject* child : before)
    {
        auto* control = static_cast<QWidget*>(child);
        if (!visible || !child->isWidgetType() || !IsToBeRevealed(*control) || !CanWait(*control))
            continue;
        control->setAttribute(Qt::WA_WState_Hidden);
        waiting.push_back(control);
    }
    QWidget::setVisible(visible);
    if (!waiting.empty())
        ComeByAgain();
    // Whoever learned of the showing may have removed some.
    const bool areAllThere = children() == before;
    const std::unordered_set<const QObject*> rest =
        areAllThere ? std::unordered_set<const QObject*>()
                    : std::unordered_set<const QObject*>(children().begin(), children().end());
    for (QWidget* control : waiting)
    {
        if (areAllThere || rest.count(control) > 0)
            CountAsShown(*control);
    }
    m_bNewControls = m_bNewControls || !waiting.empty();
    RevealNewControls();
}

void CPanelContent::TakeIn(QWidget& control)
{
    CountAsShown(control);
    ComeByAgain();
    m_bNewControls = true;
}

void CPanelContent::CountAsShown(QWidget& control) const
{
    control.setAttribute(Qt::WA_WState_Hidden, false);
    control.setAttribute(Qt::WA_WState_Visible, isVisible());
    control.setAttribute(Qt::WA_WState_Created, testAttribute(Qt::WA_WState_Created));
}

void CPanelContent::ComeByAgain()
{
    setAttribute(Qt::WA_WState_ExplicitShowHide, false);
}

void CPanelContent::RevealNewControls()
{
    if (!isVisible() || !std::exchange(m_bNewControls, false))
        return;
    std::vector<QPointer<QWidget>> seen;
    for (QObject* child : children())
    {
        auto* control = static_cast<QWidget*>(child);
        if (child->isWidgetType() && IsToBeRevealed(*control) &&
            IsInSight(*this, control->geometry()))
            seen.emplace_back(control);
    }
    for (const QPointer<QWidget>& control : seen)
    {
        if (control)
            RevealControl(*control);
    }
}

void ShowControl(QWidget& control, const std::type_info& type)
{
    control.ensurePolished();
    QWidget* parent = control.parentWidget();
    const bool canWait = typeid(control) == type && parent &&
                         typeid(*parent) == typeid(CPanelContent) && CanWait(control) &&
                         !control.testAttribute(Qt::WA_WState_ExplicitShowHide) &&
                         !QAccessible::isActive();
    if (canWait)
        static_cast<CPanelContent*>(parent)->TakeIn(control);
    else
        control.show();
}

void RevealControl(QWidget& control)
{
    // As the toolkit shows a widget, without the search for what the mouse is over and a repaint of
    // its own. Whoever watches these events may remove the control.
    const QPointer<QWidget> self(&control);
    control.setAttribute(Qt::WA_WState_ExplicitShowHide);
    SendOwedEvents(control, QRect(control.pos(), QSize()));
    if (self)
    {
        QShowEvent event;
        QCoreApplication::sendEvent(&control, &event);
    }
    if (self)
        RepaintControl(control);
}

void SendOwedEvents(QWidget& control, const QRect& before)
{
    if (!control.isVisible())
        return;
    if (control.testAttribute(Qt::WA_PendingMoveEvent))
    {
        control.setAttribute(Qt::WA_PendingMoveEvent, false);
        QMoveEvent event(control.pos(), before.topLeft());
        QCoreApplication::sendEvent(&control, &event);
    }
    if (control.testAttribute(Qt::WA_PendingResizeEvent))
    {
        control.setAttribute(Qt::WA_PendingResizeEvent, false);
        QResizeEvent event(control.size(), before.size());
        QCoreApplication::sendEvent(&control, &event);
    }
}
