#pragma once

#include <inspectorcontroller.h>

/// Tells an operation that calls the host whether the controller survived the call.
class CInspectorController::CLifeGuard
{
public:
    explicit CLifeGuard(CInspectorController& controller)
        : m_pController(&controller), m_pOuter(controller.m_pLifeGuards)
    {
        controller.m_pLifeGuards = this;
    }

    ~CLifeGuard()
    {
        if (m_pController)
            m_pController->m_pLifeGuards = m_pOuter;
    }

    CLifeGuard(const CLifeGuard&) = delete;
    CLifeGuard& operator=(const CLifeGuard&) = delete;

    bool IsAlive() const { return m_pController != nullptr; }

    static void Release(CLifeGuard* innermost)
    {
        for (CLifeGuard* guard = innermost; guard; guard = guard->m_pOuter)
            guard->m_pController = nullptr;
    }

private:
    CInspectorController* m_pController;
    CLifeGuard* m_pOuter;
};
