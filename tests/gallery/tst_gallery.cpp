#include "pictures.h"

#include <qttextencoding.h>

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace
{

/// How much a colour channel may differ before a pixel counts, and how many pixels may: a glyph's
/// edge can come out a shade different, a shifted row of pixels cannot pass.
constexpr int g_iShade = 48;
constexpr int g_iPixelsAtMost = 20;

int CountDifferentPixels(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
    {
        for (int x = 0; x < a.width(); ++x)
        {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            const int shade =
                std::max({std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                          std::abs(qBlue(p) - qBlue(q))});
            count += shade > g_iShade;
        }
    }
    return count;
}

QImage ShiftedDown(const QImage& image)
{
    QImage shifted = image;
    for (int y = image.height() - 1; y > 0; --y)
    {
        for (int x = 0; x < image.width(); ++x)
            shifted.setPixel(x, y, image.pixel(x, y - 1));
    }
    return shifted;
}

class Gallery : public testing::Test
{
protected:
    void SetUp() override
    {
        CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
        PrepareGallery();
    }

    void TearDown() override { CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1); }
};

TEST_F(Gallery, LooksAsItIsStored)
{
    for (const sPicture& picture : GalleryPictures())
    {
        SCOPED_TRACE(picture.m_sName.toStdString());
        QImage stored;
        ASSERT_TRUE(stored.load(QDir(QStringLiteral(INSPECTOR_GALLERY))
                                    .filePath(picture.m_sName + QStringLiteral(".png"))));
        const QImage fresh = picture.m_Draw();
        ASSERT_EQ(stored.width(), fresh.width());
        ASSERT_EQ(stored.height(), fresh.height());
        EXPECT_LE(CountDifferentPixels(stored, fresh), g_iPixelsAtMost);
    }
}

TEST_F(Gallery, HoldsNothingThatIsNotDrawn)
{
    QStringList drawn;
    for (const sPicture& picture : GalleryPictures())
        drawn << picture.m_sName + QStringLiteral(".png");
    drawn.sort();
    EXPECT_EQ(QDir(QStringLiteral(INSPECTOR_GALLERY)).entryList(QDir::Files, QDir::Name), drawn);
}

TEST_F(Gallery, ToleranceSeesAShiftOfOneRow)
{
    for (const sPicture& picture : GalleryPictures())
    {
        SCOPED_TRACE(picture.m_sName.toStdString());
        const QImage fresh = picture.m_Draw();
        EXPECT_GT(CountDifferentPixels(fresh, ShiftedDown(fresh)), g_iPixelsAtMost);
    }
}

} // namespace
