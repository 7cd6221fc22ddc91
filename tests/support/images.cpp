#include <support/images.h>

#include <QPalette>
#include <QString>

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace
{

QImage Blank(const QWidget& widget, qreal ratio)
{
    QImage image(static_cast<int>(std::ceil(widget.width() * ratio)),
                 static_cast<int>(std::ceil(widget.height() * ratio)),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

/// Where the pictures differ, in device pixels.
QRect Difference(const QImage& a, const QImage& b)
{
    QRect bounds;
    if (a == b)
        return bounds;
    for (int y = 0; y < a.height(); ++y)
    {
        for (int x = 0; x < a.width(); ++x)
        {
            if (a.pixel(x, y) != b.pixel(x, y))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

/// Writes the pictures where somebody can look at them; returns the message about it.
std::string Keep(const QImage& actual, const QImage& expected)
{
    const QString folder = qEnvironmentVariable("INSPECTOR_TEST_IMAGES");
    if (folder.isEmpty())
        return "set INSPECTOR_TEST_IMAGES to a folder to keep the pictures";
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = std::string(test->test_suite_name()) + "." + test->name();
    QString file = QString::fromStdString(name);
    file.replace(QLatin1Char('/'), QLatin1Char('-'));
    const bool saved =
        actual.save(folder + QLatin1Char('/') + file + QStringLiteral("-actual.png")) &&
        expected.save(folder + QLatin1Char('/') + file + QStringLiteral("-expected.png"));
    return saved ? "kept as " + file.toStdString() + "-*.png" : "could not keep the pictures";
}

} // namespace

QImage images::Render(QWidget& widget, qreal ratio, const QRegion& region)
{
    QImage image = Blank(widget, ratio);
    widget.render(&image, region.isEmpty() ? QPoint() : region.boundingRect().topLeft(), region);
    return image;
}

QImage images::Paint(const QWidget& widget, const std::function<void(QPainter&)>& paint,
                     qreal ratio)
{
    QImage image = Blank(widget, ratio);
    QPainter painter(&image);
    const QPalette palette = widget.palette();
    painter.fillRect(widget.rect(), palette.brush(widget.backgroundRole()));
    painter.setPen(QPen(palette.brush(widget.foregroundRole()), 1));
    painter.setBackground(palette.brush(widget.backgroundRole()));
    painter.setFont(widget.font());
    paint(painter);
    return image;
}

void images::ExpectSame(const QImage& actual, const QImage& expected)
{
    ASSERT_EQ(actual.width(), expected.width());
    ASSERT_EQ(actual.height(), expected.height());
    const QRect difference = Difference(actual, expected);
    if (difference.isEmpty())
        return;
    const QPoint first = difference.topLeft();
    ADD_FAILURE() << CountDifferent(actual, expected) << " pixels differ, within x "
                  << difference.left() << ".." << difference.right() << ", y " << difference.top()
                  << ".." << difference.bottom() << "; at the corner " << first.x() << ","
                  << first.y() << " " << std::hex << actual.pixel(first) << " in place of "
                  << expected.pixel(first) << "; " << Keep(actual, expected);
}

int images::CountDifferent(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
    {
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y);
    }
    return count;
}
