#include <gegl/imageoperation.h>
#include <gegl/operationcatalog.h>

#include <gtest/gtest.h>

#include <vector>

namespace
{

/// A property of a new operation, with what the tests do to it.
struct sSubject
{
    sSubject(const char* operation, const char* property)
        : m_pOperation(CImageOperation::Create(operation)),
          m_pProperty(m_pOperation ? m_pOperation->GetInfo().FindProperty(property) : nullptr)
    {
    }

    std::string Get() const { return m_pOperation->GetText(*m_pProperty); }
    sWriteResult Set(const std::string& text) { return m_pOperation->SetText(*m_pProperty, text); }

    std::unique_ptr<CImageOperation> m_pOperation;
    const sImageProperty* m_pProperty;
};

} // namespace

TEST(OperationCatalog, HasTheUsualOperationsWithTheirPads)
{
    ASSERT_GT(GetOperationCatalog().size(), 100u);
    const sOperationInfo* blur = FindOperation("gegl:gaussian-blur");
    ASSERT_TRUE(blur);
    EXPECT_EQ(blur->m_sTitle, "Gaussian Blur");
    EXPECT_TRUE(blur->m_bHasInput);
    EXPECT_FALSE(blur->m_bHasAux);
    EXPECT_TRUE(blur->m_bHasOutput);
    const sOperationInfo* board = FindOperation("gegl:checkerboard");
    ASSERT_TRUE(board);
    EXPECT_FALSE(board->m_bHasInput);
    EXPECT_TRUE(FindOperation("svg:src-over")->m_bHasAux);
    EXPECT_FALSE(FindOperation("gegl:png-save")->m_bHasOutput);
}

TEST(OperationCatalog, KnowsOldNames)
{
    EXPECT_EQ(FindOperation("gegl:over"), FindOperation("svg:src-over"));
    EXPECT_EQ(FindOperation("gegl:no-such-operation"), nullptr);
    EXPECT_EQ(CImageOperation::Create("gegl:no-such-operation"), nullptr);
}

TEST(ImageOperation, ReadsTheTypesOfItsProperties)
{
    const sOperationInfo& blur = *FindOperation("gegl:gaussian-blur");
    EXPECT_EQ(blur.FindProperty("std-dev-x")->m_eKind, ePropertyNumber);
    EXPECT_EQ(blur.FindProperty("filter")->m_eKind, ePropertyEnum);
    EXPECT_EQ(blur.FindProperty("filter")->m_vNicknames,
              (std::vector<std::string>{"auto", "fir", "iir"}));
    EXPECT_EQ(blur.FindProperty("clip-extent")->m_eKind, ePropertyBool);
    EXPECT_EQ(FindOperation("gegl:text")->FindProperty("wrap")->m_eKind, ePropertyInteger);
    EXPECT_EQ(FindOperation("gegl:text")->FindProperty("string")->m_eKind, ePropertyText);
    EXPECT_EQ(FindOperation("gegl:text")->FindProperty("color")->m_eKind, ePropertyColor);
    EXPECT_EQ(FindOperation("gegl:load")->FindProperty("path")->m_eKind, ePropertyFile);
    EXPECT_EQ(FindOperation("gegl:cell-noise")->FindProperty("seed")->m_eKind, ePropertySeed);
}

TEST(ImageOperation, MarksWhatAnOperationOnlyReports)
{
    sSubject width("gegl:text", "width");
    EXPECT_TRUE(width.m_pProperty->m_bReadOnly);
    EXPECT_EQ(width.Set("7").m_eOutcome, sWriteResult::eRefused);
    EXPECT_FALSE(FindOperation("gegl:panorama-projection")->FindProperty("width")->m_bReadOnly);
}

TEST(ImageOperation, TakesANumberAndGivesItBack)
{
    sSubject subject("gegl:gaussian-blur", "std-dev-x");
    for (const char* text : {"0.1", "12.75", "0.30000000000000004", "1e-07"})
    {
        EXPECT_EQ(subject.Set(text).m_eOutcome, sWriteResult::eAccepted) << text;
        EXPECT_EQ(subject.Get(), text);
    }
    EXPECT_EQ(subject.Set(" +2,5 ").m_eOutcome, sWriteResult::eAccepted);
    EXPECT_EQ(subject.Get(), "2.5");
}

TEST(ImageOperation, ClampsANumberToTheRangeAndSaysSo)
{
    sSubject subject("gegl:gaussian-blur", "std-dev-x");
    const sWriteResult above = subject.Set("2000");
    EXPECT_EQ(above.m_eOutcome, sWriteResult::eClamped);
    EXPECT_EQ(above.m_sMessage, "Size X: 2000 is above 1500, which was taken instead.");
    EXPECT_EQ(subject.Get(), "1500");
    const sWriteResult below = subject.Set("-1");
    EXPECT_EQ(below.m_sMessage, "Size X: -1 is below 0, which was taken instead.");
    EXPECT_EQ(subject.Get(), "0");
}

TEST(ImageOperation, RefusesWhatIsNotANumberAndKeepsTheOldValue)
{
    sSubject subject("gegl:gaussian-blur", "std-dev-x");
    subject.Set("7");
    for (const char* text : {"", " ", "abc", "1x", "nan", "inf", "-inf", "1e999", "1 2", "--1"})
    {
        const sWriteResult result = subject.Set(text);
        EXPECT_EQ(result.m_eOutcome, sWriteResult::eRefused) << text;
        EXPECT_EQ(result.m_sMessage,
                  std::string("Size X: '") + text + "' is not a number; the old value stays.");
        EXPECT_EQ(subject.Get(), "7");
    }
}

TEST(ImageOperation, RoundsWhereOnlyWholeNumbersCount)
{
    sSubject wrap("gegl:text", "wrap");
    EXPECT_EQ(wrap.Set("12.6").m_eOutcome, sWriteResult::eAccepted);
    EXPECT_EQ(wrap.Get(), "13");
    sSubject seed("gegl:cell-noise", "seed");
    seed.Set("4294967295");
    EXPECT_EQ(seed.Get(), "4294967295");
    EXPECT_EQ(seed.Set("4294967296").m_eOutcome, sWriteResult::eClamped);
    EXPECT_EQ(seed.Get(), "4294967295");
}

TEST(ImageOperation, RefusesAChoiceThatItDoesNotHave)
{
    sSubject subject("gegl:gaussian-blur", "filter");
    EXPECT_EQ(subject.Set("iir").m_eOutcome, sWriteResult::eAccepted);
    EXPECT_EQ(subject.Set("nonsense").m_eOutcome, sWriteResult::eRefused);
    EXPECT_EQ(subject.Get(), "iir");
}

TEST(ImageOperation, TakesAnyTextThatIsUtf8)
{
    sSubject subject("gegl:text", "string");
    const std::string text = "Gr\u00fc\u00dfe \u4f60\u597d <b> & \"q\"";
    EXPECT_EQ(subject.Set(text).m_eOutcome, sWriteResult::eAccepted);
    EXPECT_EQ(subject.Get(), text);
    EXPECT_EQ(subject.Set("\xff").m_eOutcome, sWriteResult::eRefused);
    EXPECT_EQ(subject.Get(), text);
}

TEST(ImageOperation, ChangesOneComponentOfAColourAtATime)
{
    sSubject subject("gegl:text", "color");
    CImageOperation& text = *subject.m_pOperation;
    text.SetComponent(*subject.m_pProperty, 0, "0.25");
    text.SetComponent(*subject.m_pProperty, 1, "0.5");
    text.SetComponent(*subject.m_pProperty, 3, "0.75");
    EXPECT_EQ(text.GetComponent(*subject.m_pProperty, 0), "0.25");
    EXPECT_EQ(text.GetComponent(*subject.m_pProperty, 1), "0.5");
    EXPECT_EQ(text.GetComponent(*subject.m_pProperty, 2), "0");
    EXPECT_EQ(text.GetComponent(*subject.m_pProperty, 3), "0.75");
    const sWriteResult result = text.SetComponent(*subject.m_pProperty, 2, "3");
    EXPECT_EQ(result.m_sMessage, "Color (blue): 3 is above 1, which was taken instead.");
    EXPECT_EQ(text.GetComponent(*subject.m_pProperty, 2), "1");
}

TEST(ImageOperation, KeepsTheDigitsOfAColourThatAreNotShown)
{
    sSubject subject("gegl:text", "color");
    CImageOperation& text = *subject.m_pOperation;
    text.SetColor(*subject.m_pProperty, {0.123456, 0.5, 0.5, 1});
    const CImageOperation::CColor before = text.GetColor(*subject.m_pProperty);
    text.SetComponent(*subject.m_pProperty, 0, "0.1235");
    EXPECT_EQ(text.GetColor(*subject.m_pProperty), before);
}

TEST(ImageOperation, IsLikeANewOneAfterReset)
{
    for (const sOperationInfo& info : GetOperationCatalog())
    {
        const auto fresh = CImageOperation::Create(info.m_sName);
        const auto changed = CImageOperation::Create(info.m_sName);
        for (const sImageProperty& property : info.m_vProperties)
        {
            if (property.m_eKind == ePropertyNumber || property.m_eKind == ePropertyInteger)
                changed->SetText(property, "1");
            else if (property.m_eKind == ePropertyColor)
                changed->SetColor(property, {0.1, 0.2, 0.3, 0.4});
        }
        changed->Reset();
        for (const sImageProperty& property : info.m_vProperties)
        {
            EXPECT_EQ(changed->GetText(property), fresh->GetText(property))
                << info.m_sName << ' ' << property.m_sName;
            if (property.m_eKind != ePropertyColor)
                continue;
            EXPECT_EQ(changed->GetColor(property), fresh->GetColor(property))
                << info.m_sName << ' ' << property.m_sName;
        }
    }
}
