#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QWidget;

/// Tells an editor when it is left: by a press anywhere else and, if it floats as a child in a
/// window of the host, by the deactivation or the closing of that window. The editor hears of it as
/// it does when its own window is deactivated, by QEvent::WindowDeactivate.
///
/// For a window of its own, a press elsewhere deactivates it too; but a platform that lets the
/// press move the keyboard focus tells of the press first.
class COutsidePress : public QObject
{
    Q_OBJECT

public:
    explicit COutsidePress(QWidget& editor);

    /// Watches from now on, all over the application. \p window is the one that the editor is about
    /// to become a child of, or null.
    void Watch(QWidget* window);
    void Stop();

    /// How long an X server or a window manager may take, in milliseconds.
    static constexpr int FallbackTime = 500;

    /// The editor's own window was hidden and shown again in one go, or shown soon after an editor
    /// gave the keyboard back. A server or a window manager gives it to the owner's window a moment
    /// later; the editor takes it back then.
    void ExpectFallback(QWidget& ownerWindow);

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void OnWindowDestroyed();
    void TakeKeyboardBack();

private:
    bool IsPartOfEditor(const QObject* object) const;
    bool IsOutside(const QObject* watched, const QEvent& event) const;
    bool IsFallback(const QObject* watched, const QEvent& event) const;
    void LeaveLater();

    QWidget& m_rEditor;
    QWidget* m_pWindow = nullptr;
    bool m_bWatching = false;
    QPointer<QWidget> m_pFallback;
    QElapsedTimer m_SinceFallbackIsExpected;
};
