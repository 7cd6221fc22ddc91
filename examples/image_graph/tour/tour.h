#pragma once

#include "hand.h"

#include <QImage>
#include <QString>

class CGraph;
class CMainWindow;

/// A tour of the program: a list of edits, made with the mouse and the keys as a user would make
/// them, and a picture of the window after each. It needs the first sample, open and rendered.
class CTour
{
public:
    /// Pictures go into \p folder, which is made.
    CTour(CMainWindow& window, const QString& folder);

    /// Makes all edits. False, and a line on the console, when one has not done what it is there
    /// for, or when its picture cannot be written.
    bool Run();

private:
    bool Open();
    bool HoverNode();
    bool TypeValue();
    bool FinishValue();
    bool SearchOperation();
    bool AddOperation();
    bool ShowPicture();
    bool RefuseEdge();
    bool Disconnect();
    bool UndoDisconnect();
    bool SelectSeveral();
    bool EditSeveral();
    bool EditInNode();
    bool NameMissingFile();
    bool UndoEverything();

    const CGraph& Graph() const;
    /// The first node of an operation, 0 when there is none.
    int NodeOf(const char* operation) const;
    /// What leads to the end of the sample that is not shown first.
    int SharedNode() const;
    QPoint TitleOf(int node) const;
    /// A pad; the output when \p pad is empty.
    QPoint PadOf(int node, const char* pad) const;
    QWidget* Canvas() const;
    /// The control of a property in a panel; null when there is none.
    static QWidget* ControlOf(QWidget* panel, const char* property);
    bool WaitForPicture();
    bool TakePicture(const QString& name);

    CMainWindow& m_window;
    CHand m_hand;
    QString m_sFolder;
    int m_iRendered = 0;
    int m_iAwaited = 0; ///< pictures that were waited for
    QImage m_first;
};
