#pragma once

/// Counts how deep a shared editor is in code of its own, so that it is not freed under its own
/// feet when a report makes the host destroy the last control that uses it.
class CInUse
{
public:
    explicit CInUse(int& depth) : m_rDepth(depth) { ++m_rDepth; }
    ~CInUse() { --m_rDepth; }
    CInUse(const CInUse&) = delete;
    CInUse& operator=(const CInUse&) = delete;

private:
    int& m_rDepth;
};
