#pragma once

#include <QPoint>
#include <QProcess>

#include <string>

class QWidget;

/// A user at the desktop that the test runs on: every press and key goes through the X server or
/// the compositor. Positions are in the coordinates of a window.
class CDesktopInput
{
public:
    static CDesktopInput& Get();
    static bool IsWayland();

    /// What the test runs on: "x11", "openbox", "sway" or "kwin".
    static std::string Desktop();

    void Click(const QWidget& window, const QPoint& position);
    void RightClick(const QWidget& window, const QPoint& position);
    /// A key, with its modifiers: "Return", "shift+Tab", "ctrl+z".
    void Key(const std::string& key);
    /// Small letters, digits and blanks.
    void Type(const std::string& text);
    /// Turns the wheel towards the user.
    void Wheel(const QWidget& window, const QPoint& position, int notches);
    /// Pans on a touchpad, as if the content was pushed up; on Wayland only.
    void Pan(const QWidget& window, const QPoint& position, int pixels);

private:
    CDesktopInput();
    ~CDesktopInput();

    void Move(const QWidget& window, const QPoint& position);
    void Press(int button);
    void Tell(const std::string& line);
    static void RunXdotool(const QStringList& arguments);

    QProcess m_Wayland;
};
