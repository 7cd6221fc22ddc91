#pragma once

#include <QWidget>

#include <typeinfo>

/// The parent of all controls of a panel.
///
/// What the toolkit does for a widget that is shown (an object for assistive technology, a posted
/// repaint, a search for what the mouse is over) takes longer than all else that a row needs. A
/// control of the library counts as shown at once and has its show event when it first comes into
/// sight; the rest is left out.
class CPanelContent : public QWidget
{
public:
    explicit CPanelContent(QWidget& panel);

    /// Called by the toolkit, too, when the panel is shown while controls wait to be revealed.
    void setVisible(bool visible) override;

    /// Reveals the controls in sight that no placement has met since they were shown.
    void RevealNewControls();

    /// Has a control wait until it comes into sight.
    void TakeIn(QWidget& control);

private:
    /// Gives a control the state of a child that is shown as its parent is.
    void CountAsShown(QWidget& control) const;

    /// Has the toolkit call setVisible when it shows the panel: it does so for a child that nobody
    /// has shown yet.
    void ComeByAgain();

    bool m_bNewControls = false;
};

/// Whether an area of a panel's content lies in it, at least in part.
inline bool IsInSight(const QWidget& content, const QRect& area)
{
    // By its corners: its width and height may be more than the toolkit's own rectangle can tell.
    const QRect& place = content.geometry();
    return area.bottom() >= 0 && area.top() <= place.bottom() - place.top() && area.right() >= 0 &&
           area.left() <= place.right() - place.left();
}

/// Shows a control. \p type is the class that asks: one of a derived class may handle events of its
/// own, and has them at once.
void ShowControl(QWidget& control, const std::type_info& type);

/// Whether a control counts as shown although the toolkit has not been told yet.
inline bool IsToBeRevealed(const QWidget& control)
{
    return !control.testAttribute(Qt::WA_WState_ExplicitShowHide) && !control.isHidden();
}

/// Does what the toolkit does for a widget that is shown.
void RevealControl(QWidget& control);

/// Sends a shown control the move and resize events that it is owed. \p before is where it was.
void SendOwedEvents(QWidget& control, const QRect& before);
