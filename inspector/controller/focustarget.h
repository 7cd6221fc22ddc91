#pragma once

#include "lifeguard.h"

/// The control that editing moves to, while the view brings it into sight: the host may remove its
/// row then, and put another control at its address.
class CInspectorController::CFocusTarget : public CInspectorController::CLifeGuard
{
public:
    CFocusTarget(CInspectorController& controller, CInspectorDataWidget* widget)
        : CLifeGuard(controller), m_rController(controller), m_pOuter(controller.m_pFocusTargets),
          m_pWidget(widget)
    {
        controller.m_pFocusTargets = this;
    }

    ~CFocusTarget()
    {
        if (IsAlive())
            m_rController.m_pFocusTargets = m_pOuter;
    }

    /// The control; null once its row was removed or the controller died.
    CInspectorDataWidget* GetWidget() const { return IsAlive() ? m_pWidget : nullptr; }

    static void Forget(CFocusTarget* innermost, const CInspectorDataWidget* widget)
    {
        for (CFocusTarget* target = innermost; target; target = target->m_pOuter)
        {
            if (target->m_pWidget == widget)
                target->m_pWidget = nullptr;
        }
    }

private:
    CInspectorController& m_rController;
    CFocusTarget* m_pOuter;
    CInspectorDataWidget* m_pWidget;
};
