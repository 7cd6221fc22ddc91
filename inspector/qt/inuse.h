#pragma once

class QWidget;

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

/// Asked when the toolkit is about to delete a shared editor that was disposed of. Returns true
/// when it is still in use or the focus is on the move, because the host runs an event loop in a
/// hook; the editor is deleted then a little after that is over.
bool PutOffDeletion(QWidget& editor, const int& depth);
