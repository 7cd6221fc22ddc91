#pragma once

#include <inspectorview.h>

/// The width wishes of a control or container, resolved against the width of its row.
struct sBounds
{
    int m_iMin;
    int m_iMax;
};

/// A bound that was not given, and the width wish of a widget that has none.
constexpr int g_iNotGiven = -1;
/// The gap between two controls of a single-line container.
constexpr int g_iContainerGap = 2;

/// What the holder's request says; g_iNotGiven where it says nothing.
int RequestedMin(const CInspectorView::sInspectorHolder& holder, int reference);
int RequestedMax(const CInspectorView::sInspectorHolder& holder, int reference);
/// The width that the holder's widget asks for; g_iNotGiven when it has none.
int RequiredWidth(const CInspectorView::sInspectorHolder& holder);

/// The bounds of a control: the required width stands in for a minimum that is not given, the
/// reference width for a maximum.
sBounds ControlBounds(const CInspectorView::sInspectorHolder& holder, int reference);

inline bool IsContainer(const CInspectorView::sInspectorElement& row)
{
    return row.m_pHolder->m_iKind == CInspectorView::eHolderContainer;
}
