#pragma once

#include <QObject>

class QWidget;

/// Tells an editor that floats as a child in a window of the host when it is left: a press anywhere
/// else, the deactivation or the closing of the window. The editor hears of it as it would as a
/// window of its own, by QEvent::WindowDeactivate.
class COutsidePress : public QObject
{
    Q_OBJECT

public:
    explicit COutsidePress(QWidget& editor);

    /// Watches from now on, all over the application.
    void Watch(QWidget& window);
    void Stop();

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void OnWindowDestroyed();

private:
    bool IsPartOfEditor(const QObject* object) const;
    bool IsOutside(const QObject* watched, const QEvent& event) const;
    void LeaveLater();

    QWidget& m_rEditor;
    QWidget* m_pWindow = nullptr;
};
