#include <qttextencoding.h>

#include <inspector/qt/text.h>

#include <gtest/gtest.h>

#include <string>

namespace
{

/// Latin-1 is the choice before and after each test.
class TextEncoding : public testing::Test
{
protected:
    ~TextEncoding() override { CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1); }

    static void UseUtf8() { CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8); }

    static std::string AllBytes()
    {
        std::string text;
        for (int byte = 1; byte < 256; ++byte)
            text += static_cast<char>(byte);
        return text;
    }
};

} // namespace

TEST_F(TextEncoding, IsLatin1FromTheStart)
{
    EXPECT_EQ(CQTTextEncoding::GetEncoding(), CQTTextEncoding::eTextEncodingLatin1);
    EXPECT_EQ(CQTTextEncoding::eTextEncodingLatin1, 0);
    EXPECT_EQ(CQTTextEncoding::eTextEncodingUtf8, 1);
}

TEST_F(TextEncoding, IsTheOneThatWasSetLast)
{
    UseUtf8();
    EXPECT_EQ(CQTTextEncoding::GetEncoding(), CQTTextEncoding::eTextEncodingUtf8);
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
    EXPECT_EQ(CQTTextEncoding::GetEncoding(), CQTTextEncoding::eTextEncodingLatin1);
}

TEST_F(TextEncoding, ReadsEveryLatin1ByteAsOneCharacter)
{
    const std::string text = AllBytes();
    const QString read = ToQString(text);
    ASSERT_EQ(read.size(), 255);
    for (int i = 0; i < 255; ++i)
        EXPECT_EQ(read.at(i).unicode(), i + 1);
    EXPECT_EQ(ToNarrow(read), text);
}

TEST_F(TextEncoding, ReadsUtf8Sequences)
{
    UseUtf8();
    const std::string text = "gr\xC3\xBC\xC3\x9F \xE2\x82\xAC \xF0\x9F\x98\x80";
    const QString read = ToQString(text);
    EXPECT_EQ(read, QStringLiteral(u"gr\u00FC\u00DF \u20AC \U0001F600"));
    EXPECT_EQ(ToNarrow(read), text);
}

TEST_F(TextEncoding, ReadsUtf8BytesAsLatin1UntilItIsSwitched)
{
    EXPECT_EQ(ToQString("\xC3\xBC"), QStringLiteral(u"\u00C3\u00BC"));
    UseUtf8();
    EXPECT_EQ(ToQString("\xC3\xBC"), QStringLiteral(u"\u00FC"));
}

TEST_F(TextEncoding, KeepsALeadingByteOrderMark)
{
    UseUtf8();
    for (const std::string text :
         {"\xEF\xBB\xBF", "\xEF\xBB\xBFx", "\xEF\xBB\xBF\xEF\xBB\xBF", "x\xEF\xBB\xBF"})
        EXPECT_EQ(ToNarrow(ToQString(text)), text);
    EXPECT_EQ(ToQString("\xEF\xBB\xBFx"), QStringLiteral(u"\uFEFFx"));
}

TEST_F(TextEncoding, GivesUtf8TextsBackByteForByte)
{
    UseUtf8();
    for (const std::string text :
         {"", "a", "\t\n\r\x1F\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xEF\xBF\xBD",
          "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF", "e\xCC\x81"})
        EXPECT_EQ(ToNarrow(ToQString(text)), text);
}

TEST_F(TextEncoding, WritesAQuestionMarkForACharacterThatLatin1DoesNotHave)
{
    EXPECT_EQ(ToNarrow(QStringLiteral(u"1 \u20AC")), "1 ?");
}

TEST_F(TextEncoding, ReadsZeroBytesAndWritesUpToTheFirst)
{
    const std::string text("ab\0cd", 5);
    for (const auto encoding :
         {CQTTextEncoding::eTextEncodingLatin1, CQTTextEncoding::eTextEncodingUtf8})
    {
        CQTTextEncoding::SetEncoding(encoding);
        const QString read = ToQString(text);
        ASSERT_EQ(read.size(), 5);
        EXPECT_EQ(read.at(2).unicode(), 0);
        EXPECT_EQ(read.at(4).unicode(), 'd');
        EXPECT_EQ(ToNarrow(read), "ab");
        EXPECT_EQ(ToNarrow(QString(QChar(0))), "");
    }
}

TEST_F(TextEncoding, ReadsNoTextAsNoText)
{
    for (const auto encoding :
         {CQTTextEncoding::eTextEncodingLatin1, CQTTextEncoding::eTextEncodingUtf8})
    {
        CQTTextEncoding::SetEncoding(encoding);
        EXPECT_TRUE(ToQString("").isEmpty());
        EXPECT_EQ(ToNarrow(QString()), "");
    }
}

TEST_F(TextEncoding, ReadsAMegabyte)
{
    std::string text(1 << 20, 'x');
    text.back() = '\xE9';
    const QString read = ToQString(text);
    EXPECT_EQ(read.size(), 1 << 20);
    EXPECT_EQ(read.back().unicode(), 0xE9);
    EXPECT_EQ(ToNarrow(read), text);
}
