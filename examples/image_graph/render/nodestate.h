#pragma once

#include <QString>

/// What the rendering of the picture says of a node.
enum eNodeState
{
    eNodeIdle,
    eNodeRendering,
    eNodeError,
};

struct sNodeState
{
    eNodeState m_eState = eNodeIdle;
    QString m_sError; ///< for the user; empty unless there is an error

    bool operator==(const sNodeState& other) const
    {
        return m_eState == other.m_eState && m_sError == other.m_sError;
    }
};
