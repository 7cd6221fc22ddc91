#pragma once

#include <inspectordatawidget.h>
#include <inspectorview.h>

#include <algorithm>
#include <functional>

/// Has a place in memory fetched that is about to be read.
inline void FetchAhead(const void* place)
{
#if defined(__GNUC__)
    __builtin_prefetch(place);
#else
    static_cast<void>(place);
#endif
}

/// Calls an operation for every control holder in the order of their addresses. The host may add
/// and remove holders meanwhile: those that stand ahead are met.
///
/// The set itself is slow to walk along. Each holder and each control lies somewhere else in
/// memory, so they are fetched a few steps ahead, one after the other.
template <typename Operation>
void CInspectorView::ForEachControlHolder(Operation operation)
{
    constexpr std::size_t step = 4;
    std::size_t next = 0;
    for (UpdateControlOrder(); next < m_vControlOrder.size();)
    {
        if (next + 3 * step < m_vControlOrder.size())
        {
            FetchAhead(m_vControlOrder[next + 3 * step]);
            FetchAhead(&m_vControlOrder[next + 3 * step]->m_iY);
            FetchAhead(m_vControlOrder[next + 2 * step]->GetWidget());
            if (const CInspectorDataWidget* soon = m_vControlOrder[next + step]->GetWidget())
            {
                for (const void* place : soon->m_apFetched)
                    FetchAhead(place);
            }
        }
        sInspectorHolder* holder = m_vControlOrder[next];
        const unsigned long order = m_ulControlOrder;
        operation(*holder);
        ++next;
        if (!IsControlOrderKnown() || m_ulControlOrder != order)
        {
            UpdateControlOrder();
            next = std::upper_bound(m_vControlOrder.begin(), m_vControlOrder.end(), holder,
                                    std::less<>()) -
                   m_vControlOrder.begin();
        }
    }
}
