#include <inspector/qt/textline.h>

#include <support/images.h>

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPicture>
#include <QTransform>

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <vector>

// Everything is drawn twice and compared with what the toolkit draws: the first time a text is laid
// out, the second time it is known.

namespace
{

constexpr int g_iFlags = Qt::AlignLeft | Qt::AlignVCenter;
constexpr int g_iWidth = 260;
constexpr int g_iHeight = 60;

using Drawing = std::function<void(QPainter&, const QRectF&, const QString&)>;

void DrawAsToolkit(QPainter& painter, const QRectF& rect, const QString& text)
{
    painter.drawText(rect, g_iFlags, text);
}

std::vector<QString> Texts()
{
    return {
        QString(),
        QStringLiteral(" "),
        QStringLiteral("Size"),
        QStringLiteral("i"),
        QStringLiteral("fj gfi ffl"),
        QStringLiteral("AVAWA To. LT"),
        QStringLiteral("  in front"),
        QStringLiteral("behind   "),
        QStringLiteral("12.25"),
        QStringLiteral("-0,5 = \"x\""),
        QStringLiteral("a & b && c"),
        QStringLiteral("&mnemonic"),
        QStringLiteral("<b>no</b>"),
        QStringLiteral("tab\tbed"),
        QStringLiteral("two\nlines"),
        QStringLiteral("\n"),
        QStringLiteral("re\rturn"),
        QStringLiteral("bell\a\x1f."),
        QStringLiteral(u"line\u2028separator"),
        QStringLiteral(u"para\u2029graph"),
        QStringLiteral(u"a longer variant\u009Cshort"),
        QString::fromLatin1("ze\0ro", 5),
        QStringLiteral(u"Gr\u00F6\u00DFe \u00B5 \u00FF"),
        QStringLiteral(u"no\u00A0break soft\u00ADhyphen\u00AD"),
        QStringLiteral(u"e\u0301\u0323 \u0041\u030A\u0300\u0301\u0302\u0303"),
        QStringLiteral(u"\u03A9\u03BC\u03AD\u03B3\u03B1 \u0416\u0443\u043A"),
        QStringLiteral(u"\u05E9\u05DC\u05D5\u05DD"),
        QStringLiteral(u"\u05E9\u05DC\u05D5\u05DD (1) ab!"),
        QStringLiteral(u"ab \u05E9\u05DC\u05D5\u05DD (1) cd"),
        QStringLiteral(u"\u0645\u0631\u062D\u0628\u0627 12"),
        QStringLiteral(u"\u5927\u5C0F\u3001\u304D"),
        QStringLiteral(u"\U0001F600 \u2192 \u2211"),
        QStringLiteral(u"\u202Eoverridden\u202C"),
        QStringLiteral("The radius of the blur, in pixels of the picture, not of the screen"),
        QString(200, QLatin1Char('w')),
        QString(201, QLatin1Char('w')),
        QString(3000, QLatin1Char('m')),
    };
}

std::vector<QFont> Fonts()
{
    std::vector<QFont> fonts;
    for (const char* family : {"DejaVu Sans", "DejaVu Sans Mono", "DejaVu Serif", "Nowhere"})
    {
        for (const int pixels : {1, 7, 12, 13, 40})
        {
            QFont font(QString::fromLatin1(family));
            font.setPixelSize(pixels);
            fonts.push_back(font);
        }
    }
    const auto vary = [&fonts](const std::function<void(QFont&)>& change)
    {
        QFont font = QGuiApplication::font();
        change(font);
        fonts.push_back(font);
    };
    vary([](QFont& font) { font.setPointSizeF(9.5); });
    vary([](QFont& font) { font.setBold(true); });
    vary([](QFont& font) { font.setItalic(true); });
    vary([](QFont& font) { font.setUnderline(true); });
    vary([](QFont& font) { font.setOverline(true); });
    vary([](QFont& font) { font.setStrikeOut(true); });
    vary([](QFont& font) { font.setKerning(false); });
    vary([](QFont& font) { font.setStretch(150); });
    vary([](QFont& font) { font.setWordSpacing(7); });
    vary([](QFont& font) { font.setLetterSpacing(QFont::AbsoluteSpacing, -2); });
    vary([](QFont& font) { font.setLetterSpacing(QFont::PercentageSpacing, 130); });
    vary([](QFont& font) { font.setCapitalization(QFont::SmallCaps); });
    vary([](QFont& font) { font.setHintingPreference(QFont::PreferNoHinting); });
    vary([](QFont& font) { font.setStyleStrategy(QFont::NoAntialias); });
    return fonts;
}

std::vector<QRectF> Rects()
{
    return {
        QRectF(5, 5, 240, 20),
        QRectF(5, 5, 240, 21),
        QRectF(5.5, 4.25, 240, 20),
        QRectF(5.3, 5.7, 200, 19),
        QRectF(5, 5, 30, 20),
        QRectF(5, 5, 30.5, 20),
        QRectF(5, 5, 240, 5),
        QRectF(5, 5, 3, 3),
        QRectF(-20, 5, 60, 20),
        QRectF(0, -8, 240, 20),
        QRectF(10, 10, 0, 0),
        QRectF(50, 40, -30, -20),
        QRectF(3, 0, 2, 20),
        QRectF(200, 30, 240, 40),
        QRectF(-1e7, 5, 2e7, 20),
        QRectF(1e8, 1e8, 240, 20),
        QRectF(5, -(1 << 30), 9, 1 << 30),
        QRectF(5, 5, 240, 1e9),
    };
}

/// How a painter is set up before it draws.
using Setting = std::function<void(QPainter&)>;

std::vector<Setting> Settings()
{
    QLinearGradient gradient(0, 0, 60, 0);
    gradient.setColorAt(0, Qt::red);
    gradient.setColorAt(1, Qt::blue);
    const QBrush brush(gradient);
    return {
        [](QPainter&) {},
        [](QPainter& painter) { painter.setPen(QColor(10, 20, 200)); },
        [](QPainter& painter) { painter.setPen(QColor(10, 20, 200, 90)); },
        [](QPainter& painter) { painter.setPen(Qt::NoPen); },
        [brush](QPainter& painter) { painter.setPen(QPen(brush, 1)); },
        [](QPainter& painter)
        {
            painter.setBackgroundMode(Qt::OpaqueMode);
            painter.setBackground(Qt::yellow);
        },
        [](QPainter& painter)
        {
            painter.setBackgroundMode(Qt::OpaqueMode);
            painter.setBackground(Qt::yellow);
            painter.setPen(Qt::NoPen);
        },
        [](QPainter& painter) { painter.setOpacity(0.4); },
        [](QPainter& painter) { painter.setRenderHint(QPainter::Antialiasing); },
        [](QPainter& painter) { painter.setRenderHint(QPainter::TextAntialiasing, false); },
        [](QPainter& painter) { painter.setClipRect(QRect(12, 8, 40, 9)); },
        [](QPainter& painter) { painter.setClipRegion(QRegion(0, 0, 60, 60, QRegion::Ellipse)); },
        [](QPainter& painter) { painter.setCompositionMode(QPainter::CompositionMode_Xor); },
        [](QPainter& painter) { painter.setLayoutDirection(Qt::RightToLeft); },
        [](QPainter& painter) { painter.setLayoutDirection(Qt::LayoutDirectionAuto); },
        [](QPainter& painter) { painter.translate(0.3, 0.7); },
        [](QPainter& painter) { painter.translate(7, -3); },
        [](QPainter& painter) { painter.scale(1.25, 1.25); },
        [](QPainter& painter) { painter.scale(0.5, 2); },
        [](QPainter& painter) { painter.rotate(30); },
        [](QPainter& painter) { painter.setTransform(QTransform(0, 1, -1, 0, 60, 0)); },
        [](QPainter& painter) { painter.shear(0.3, 0.1); },
        [](QPainter& painter) { painter.setTransform(QTransform(-1, 0, 0, 1, g_iWidth, 0)); },
        [](QPainter& painter)
        { painter.setTransform(QTransform(1, 0, 0.001, 0, 1, 0.001, 0, 0, 1)); },
        [](QPainter& painter) { painter.setWindow(0, 0, g_iWidth / 2, g_iHeight / 2); },
    };
}

template <typename Device>
void DrawOn(Device& device, const QFont& font, const QRectF& rect, const QString& text,
            const Setting& setting, const Drawing& draw)
{
    QPainter painter(&device);
    painter.setFont(QFont(font, &device));
    // As in a widget; a painter of a picture follows the text.
    painter.setLayoutDirection(Qt::LeftToRight);
    setting(painter);
    const QPainterPath clip = painter.clipPath();
    const QPen pen = painter.pen();
    draw(painter, rect, text);
    EXPECT_EQ(painter.clipPath(), clip);
    EXPECT_EQ(painter.pen(), pen);
}

QImage Blank(QImage::Format format, qreal ratio)
{
    QImage image(QSize(g_iWidth, g_iHeight) * ratio, format);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    return image;
}

/// Draws with the toolkit and twice with the library, and compares.
void Compare(QImage blank, const QFont& font, const QRectF& rect, const QString& text,
             const Setting& setting)
{
    QImage expected = blank.copy();
    expected.setDevicePixelRatio(blank.devicePixelRatio());
    DrawOn(expected, font, rect, text, setting, DrawAsToolkit);
    for (int i = 0; i < 2; ++i)
    {
        QImage actual = blank.copy();
        actual.setDevicePixelRatio(blank.devicePixelRatio());
        DrawOn(actual, font, rect, text, setting, DrawTextLine);
        if (actual == expected)
            continue;
        ADD_FAILURE() << "time " << i << ": \"" << text.left(60).toStdString() << "\" in "
                      << font.toString().toStdString() << " at " << rect.x() << ", " << rect.y()
                      << ", " << rect.width() << " x " << rect.height() << ", "
                      << images::CountDifferent(actual, expected) << " pixels";
    }
}

} // namespace

TEST(TextLine, IsDrawnAsTheToolkitDrawsIt)
{
    const QImage blank = Blank(QImage::Format_ARGB32_Premultiplied, 1);
    for (const QFont& font : Fonts())
    {
        for (const QString& text : Texts())
            Compare(blank, font, QRectF(5.5, 4.25, 120, 20), text, [](QPainter&) {});
    }
}

TEST(TextLine, IsCutOffWhereTheToolkitCutsIt)
{
    const QImage blank = Blank(QImage::Format_ARGB32_Premultiplied, 1);
    QFont italic = QGuiApplication::font();
    italic.setItalic(true);
    for (const QRectF& rect : Rects())
    {
        for (const QString& text : Texts())
        {
            for (const QFont& font : {QGuiApplication::font(), italic})
                Compare(blank, font, rect, text, [](QPainter&) {});
        }
    }
}

TEST(TextLine, FollowsEverySettingOfThePainter)
{
    for (const qreal ratio : {1.0, 1.25, 1.5, 2.0})
    {
        const QImage blank = Blank(QImage::Format_ARGB32_Premultiplied, ratio);
        for (const Setting& setting : Settings())
        {
            for (const char* text : {"Size", "Radius of the blur", "behind   "})
            {
                for (const QRectF& rect : {QRectF(5, 5, 240, 20), QRectF(5, 5.5, 40, 19)})
                    Compare(blank, QGuiApplication::font(), rect, QString::fromLatin1(text),
                            setting);
            }
        }
    }
}

TEST(TextLine, RunsAsThePainterRuns)
{
    const QImage blank = Blank(QImage::Format_ARGB32_Premultiplied, 1);
    for (const Qt::LayoutDirection direction :
         {Qt::LeftToRight, Qt::RightToLeft, Qt::LayoutDirectionAuto})
    {
        for (const QString& text : Texts())
        {
            for (const QRectF& rect : {QRectF(5, 5, 240, 20), QRectF(5, 5.5, 40, 19)})
                Compare(blank, QGuiApplication::font(), rect, text,
                        [direction](QPainter& painter) { painter.setLayoutDirection(direction); });
        }
    }
}

TEST(TextLine, IsCutOffWhereItsLastLetterLeansOverItsEdge)
{
    const QImage blank = Blank(QImage::Format_ARGB32_Premultiplied, 1);
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPixelSize(30);
    font.setItalic(true);
    for (const char* letters : {"f", "iff", "T f", "V"})
    {
        const QString text = QString::fromLatin1(letters);
        const qreal advance = QFontMetricsF(font).horizontalAdvance(text);
        for (qreal width = advance - 3; width < advance + 12; width += 0.25)
            Compare(blank, font, QRectF(9, 5, width, 45), text, [](QPainter&) {});
    }
}

TEST(TextLine, IsTheSameInEveryMixture)
{
    std::mt19937 random(4);
    const auto pick = [&random](const auto& list) { return list[random() % list.size()]; };
    const std::vector<QString> texts = Texts();
    const std::vector<QFont> fonts = Fonts();
    const std::vector<QRectF> rects = Rects();
    const std::vector<Setting> settings = Settings();
    const std::vector<QImage> blanks{
        Blank(QImage::Format_ARGB32_Premultiplied, 1),
        Blank(QImage::Format_ARGB32, 1.25),
        Blank(QImage::Format_RGB32, 1),
        Blank(QImage::Format_RGB32, 1.5),
        Blank(QImage::Format_RGB16, 1),
        Blank(QImage::Format_Mono, 1),
        Blank(QImage::Format_RGB32, 2),
    };
    for (int i = 0; i < 4000 && !testing::Test::HasFailure(); ++i)
        Compare(pick(blanks), pick(fonts), pick(rects), pick(texts), pick(settings));
}

TEST(TextLine, IsTheSameAmongMoreTextsThanAreRemembered)
{
    const QImage blank = Blank(QImage::Format_RGB32, 1);
    for (int round = 0; round < 2; ++round)
    {
        for (int i = 0; i < 700; ++i)
            Compare(blank, QGuiApplication::font(), QRectF(5, 5, 240, 20),
                    QStringLiteral("Row ") + QString::number(i), [](QPainter&) {});
    }
}

TEST(TextLine, IsTheSameInARecordThatIsPlayed)
{
    const auto play =
        [](const QString& text, const Setting& setting, const QRectF& rect, const Drawing& draw)
    {
        QPicture picture;
        DrawOn(picture, QGuiApplication::font(), rect, text, setting, draw);
        QImage image = Blank(QImage::Format_RGB32, 1);
        QPainter painter(&image);
        painter.drawPicture(QPointF(0, 0), picture);
        painter.end();
        return image;
    };
    for (const Setting& setting : Settings())
    {
        for (const QString& text : Texts())
        {
            for (const QRectF& rect : {QRectF(5, 5, 240, 20), QRectF(5, 5.5, 40, 19)})
            {
                const QImage expected = play(text, setting, rect, DrawAsToolkit);
                for (int i = 0; i < 2; ++i)
                    images::ExpectSame(play(text, setting, rect, DrawTextLine), expected);
            }
        }
    }
}

TEST(TextLine, FollowsTheResolutionOfTheDevice)
{
    QFont font = QGuiApplication::font();
    font.setPointSize(9);
    for (int round = 0; round < 2; ++round)
    {
        for (const int dots : {3780, 8000, 2835})
        {
            QImage blank = Blank(QImage::Format_RGB32, 1);
            blank.setDotsPerMeterX(dots);
            blank.setDotsPerMeterY(dots);
            Compare(blank, font, QRectF(5, 5, 240, 40), QStringLiteral("Radius"), [](QPainter&) {});
        }
    }
}

TEST(TextLine, IsTheSameAfterFontsCameOrWent)
{
    const QImage blank = Blank(QImage::Format_RGB32, 1);
    for (int round = 0; round < 2; ++round)
    {
        Compare(blank, QGuiApplication::font(), QRectF(5, 5, 240, 20), QStringLiteral("Radius"),
                [](QPainter&) {});
        Q_EMIT qGuiApp->fontDatabaseChanged();
    }
}
