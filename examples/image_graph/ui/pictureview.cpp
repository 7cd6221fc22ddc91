#include "pictureview.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

constexpr int g_iMargin = 16;
constexpr int g_iCheckSize = 8;
constexpr int g_iPatience = 200; ///< in milliseconds

// What shows through where the picture does.
QBrush CheckBrush()
{
    QPixmap tile(2 * g_iCheckSize, 2 * g_iCheckSize);
    tile.fill(QColor(120, 120, 120));
    QPainter painter(&tile);
    painter.fillRect(0, 0, g_iCheckSize, g_iCheckSize, QColor(100, 100, 100));
    painter.fillRect(g_iCheckSize, g_iCheckSize, g_iCheckSize, g_iCheckSize, QColor(100, 100, 100));
    return QBrush(tile);
}

} // namespace

class CPictureView::CCanvas : public QWidget
{
public:
    explicit CCanvas(const QImage& image) : m_image(image) { setMinimumSize(240, 180); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Dark));
        if (m_image.isNull())
        {
            painter.setPen(palette().color(QPalette::PlaceholderText));
            painter.drawText(rect(), Qt::AlignCenter, tr("There is no picture."));
            return;
        }
        const QSize room = size() - QSize(2 * g_iMargin, 2 * g_iMargin);
        const QSize shown = m_image.size().scaled(room, Qt::KeepAspectRatio);
        const QRect area(QPoint((width() - shown.width()) / 2, (height() - shown.height()) / 2),
                         shown);
        if (m_image.hasAlphaChannel())
            painter.fillRect(area, CheckBrush());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(area, m_image);
        painter.setPen(QColor(0, 0, 0, 140));
        painter.drawRect(area.adjusted(-1, -1, 0, 0));
    }

private:
    const QImage& m_image;
};

CPictureView::CPictureView(QWidget* parent)
    : QWidget(parent), m_pCanvas(new CCanvas(m_image)), m_pState(new QLabel),
      m_pProgress(new QProgressBar), m_pCancel(new QPushButton(tr("Cancel")))
{
    m_pProgress->setRange(0, 100);
    m_pProgress->setTextVisible(false);
    m_pProgress->setFixedHeight(10);
    // Unseen, they keep their room.
    for (QWidget* widget : {static_cast<QWidget*>(m_pProgress), static_cast<QWidget*>(m_pCancel)})
    {
        QSizePolicy policy = widget->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget->setSizePolicy(policy);
    }
    SetProgressVisible(false);
    m_patience.setSingleShot(true);
    m_patience.setInterval(g_iPatience);
    connect(&m_patience, &QTimer::timeout, this, [this] { SetProgressVisible(true); });
    auto* strip = new QHBoxLayout;
    strip->setContentsMargins(8, 2, 8, 6);
    strip->setSpacing(10);
    strip->addWidget(m_pState);
    strip->addWidget(m_pProgress, 1);
    strip->addWidget(m_pCancel);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pCanvas, 1);
    layout->addLayout(strip);
    connect(m_pCancel, &QPushButton::clicked, this, &CPictureView::CancelClicked);
}

void CPictureView::ShowProgress(int percent)
{
    m_pProgress->setValue(percent);
    if (m_pCancel->isHidden() && !m_patience.isActive())
        m_patience.start();
}

void CPictureView::ShowImage(const QImage& image)
{
    m_image = image;
    m_pCanvas->update();
    EndProgress(image.isNull() ? tr("No picture")
                               : tr("%1 \u00d7 %2 pixels").arg(image.width()).arg(image.height()));
}

void CPictureView::ShowCancelled()
{
    EndProgress(tr("Cancelled"));
}

void CPictureView::EndProgress(const QString& state)
{
    m_pState->setText(state);
    m_pProgress->setValue(0);
    m_patience.stop();
    SetProgressVisible(false);
}

void CPictureView::SetProgressVisible(bool visible)
{
    m_pProgress->setVisible(visible);
    m_pCancel->setVisible(visible);
    if (visible)
        m_pState->setText(tr("Rendering"));
}
