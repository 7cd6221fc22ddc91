#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

/// The rendered picture, as large as it fits, and below it how far the rendering of the next is.
class CPictureView : public QWidget
{
    Q_OBJECT

public:
    explicit CPictureView(QWidget* parent = nullptr);

    const QImage& GetImage() const { return m_image; }

    void ShowProgress(int percent);
    /// Shows a picture; a null image shows that there is none.
    void ShowImage(const QImage& image);
    void ShowCancelled();

Q_SIGNALS:
    void CancelClicked();

private:
    void EndProgress(const QString& state);
    void SetProgressVisible(bool visible);

    class CCanvas;

    QImage m_image;
    CCanvas* m_pCanvas;
    QLabel* m_pState;
    QProgressBar* m_pProgress;
    QPushButton* m_pCancel;
    QTimer m_patience; ///< most pictures are there before one could cancel them
};
