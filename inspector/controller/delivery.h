#pragma once

#include "lifeguard.h"

/// One pass over the queued notices: what is in hand while the host handles it.
class CInspectorController::CDelivery : public CInspectorController::CLifeGuard
{
public:
    explicit CDelivery(CInspectorController& controller)
        : CLifeGuard(controller), m_rController(controller)
    {
        controller.m_pDelivery = this;
    }

    ~CDelivery()
    {
        if (IsAlive())
            m_rController.m_pDelivery = nullptr;
    }

    static constexpr std::size_t NoNotice = static_cast<std::size_t>(-1);

    sInspectorControllerData* m_pRecord = nullptr;
    /// The place of the notice in hand among the row's; NoNotice for a row without any.
    std::size_t m_ulNotice = NoNotice;
    /// True once the row in hand was removed: the pass deletes the notice in hand, and nothing else
    /// of the row is left.
    bool m_bRowGone = false;

private:
    CInspectorController& m_rController;
};
