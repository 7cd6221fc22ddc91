#include "focusmove.h"

#include <inspectordatawidget.h>
#include <qtsimpletextwidget.h>

#include "../controller/takeover.h"

#include <QApplication>
#include <QWindow>

#include <utility>
#include <vector>

namespace
{

const CFocusMove* g_pInnermost = nullptr;
std::vector<QPointer<QWidget>> g_vHeld;

} // namespace

CFocusMove::CFocusMove(const QWidget& left)
    : m_rLeft(left), m_pReached(QApplication::focusWidget()), m_pOuter(g_pInnermost)
{
    g_pInnermost = this;
    g_pfnTakeOver = &CFocusMove::TakeOver;
}

CFocusMove::~CFocusMove()
{
    g_pInnermost = m_pOuter;
    if (m_pOuter)
        return;
    g_pfnTakeOver = nullptr;
    for (const QPointer<QWidget>& widget : std::exchange(g_vHeld, {}))
    {
        if (widget)
            widget->deleteLater();
    }
}

bool CFocusMove::IsUnderWay()
{
    return g_pInnermost != nullptr;
}

bool CFocusMove::IsHolding(const QWidget& editor)
{
    const QWindow* window = editor.windowHandle();
    return g_pInnermost || (window && window == QGuiApplication::focusWindow());
}

bool CFocusMove::IsHolding(const QWidget* control, const QWidget* part)
{
    return part && (control == part || control->isAncestorOf(part));
}

bool CFocusMove::TakeOver(CInspectorDataWidget& widget)
{
    auto* control = dynamic_cast<QWidget*>(&widget);
    if (!control)
        return false;
    bool isHeld = IsHolding(control, QApplication::focusWidget());
    for (const CFocusMove* move = g_pInnermost; move; move = move->m_pOuter)
        isHeld = isHeld || control == &move->m_rLeft || IsHolding(control, move->m_pReached);
    if (!isHeld)
        return false;
    if (auto* box = dynamic_cast<CQTSimpleTextWidget*>(control))
        box->m_bRowGone = true;
    // Not yet deleteLater: the host may run an event loop in its hook.
    g_vHeld.emplace_back(control);
    control->hide();
    return true;
}
