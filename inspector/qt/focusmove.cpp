#include "focusmove.h"

#include <inspectordatawidget.h>
#include <qtsimpletextwidget.h>

#include "../controller/takeover.h"

#include <QApplication>
#include <QWindow>

namespace
{

const CFocusMove* g_pInnermost = nullptr;

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
    if (!m_pOuter)
        g_pfnTakeOver = nullptr;
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
    control->deleteLater();
    control->hide();
    return true;
}
