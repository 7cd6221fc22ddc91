#pragma once

#include "lifeguard.h"

/// A walk along the rows that calls the host, which may remove and append rows meanwhile.
class CInspectorController::CWalk : public CInspectorController::CLifeGuard
{
public:
    explicit CWalk(CInspectorController& controller)
        : CLifeGuard(controller), m_Row(controller.m_lItems.begin()), m_rController(controller),
          m_pOuter(controller.m_pWalks)
    {
        controller.m_pWalks = this;
    }

    ~CWalk()
    {
        if (IsAlive())
            m_rController.m_pWalks = m_pOuter;
    }

    /// Moves every walk that stands at a row to the next one, because the row is removed.
    static void StepOff(CWalk* innermost, CRows::iterator row)
    {
        for (CWalk* walk = innermost; walk; walk = walk->m_pOuter)
        {
            if (walk->m_Row != row)
                continue;
            ++walk->m_Row;
            walk->m_bRowGone = true;
        }
    }

    CRows::iterator m_Row;
    /// True when the walk stands at another row already because its row was removed.
    bool m_bRowGone = false;

private:
    CInspectorController& m_rController;
    CWalk* m_pOuter;
};
