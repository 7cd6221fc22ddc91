#include "panel.h"

#include <QCoreApplication>
#include <QEvent>

void CPanel::Paint()
{
    // A window that was just shown must first hear from the platform that it is exposed.
    QCoreApplication::processEvents();
    QEvent request(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&Window(), &request);
}

std::string NextValue(const sPlannedRow& row, int round)
{
    switch (row.m_eKind)
    {
    case ePlannedKind::Bool:
        return round % 2 ? "1" : "0";
    case ePlannedKind::Enum:
        return std::to_string(round % static_cast<int>(row.m_vChoices.size()));
    default:
        return std::to_string(round) + ".5";
    }
}
