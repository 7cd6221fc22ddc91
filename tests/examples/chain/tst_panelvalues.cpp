#include "panelfixture.h"

#include <gegl/numbertext.h>

#include <qtenumdatawidget.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <qtsimpletextwidget.h>

#include <QApplication>
#include <QFocusEvent>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace
{

constexpr auto g_eValidate = CInspectorDataElement::eEndEditValidate;

std::string Shown(ISimpleDataProvider& widget)
{
    std::string text;
    widget.GetDataAsString(text);
    return text;
}

/// Every value of every operation, written through the controls as a user does.
class CPanelValues : public CPanelFixture,
                     public testing::WithParamInterface<CQTTextEncoding::eTextEncoding>
{
protected:
    CPanelValues() : CPanelFixture(GetParam()) {}

    void WriteField(const sImageProperty& property, const std::string& text)
    {
        const auto fields = Controls<CQTSimpleDataWidget>(property.m_sName);
        ASSERT_EQ(fields.size(), 1);
        fields[0]->FinishValueEdit(text.c_str(), g_eValidate);
        Deliver();
        EXPECT_EQ(Value(property), text);
        EXPECT_EQ(Shown(*fields[0]), text);
    }

    void WriteNumber(const sImageProperty& property)
    {
        const double low = std::max(property.m_dMin, -1000.0);
        const double high = std::min(property.m_dMax, low + 1000.0);
        double number = low + (high - low) * 0.375;
        if (property.m_eKind != ePropertyNumber)
            number = std::floor(number);
        for (const double value : {number, low, high})
            WriteField(property, NumberToText(value));
    }

    void WriteBool(const sImageProperty& property)
    {
        const auto boxes = Controls<CQTSimpleBoolWidget>(property.m_sName);
        ASSERT_EQ(boxes.size(), 1);
        const std::string before = Value(property);
        QTest::mouseClick(boxes[0], Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        Deliver();
        EXPECT_NE(Value(property), before);
        EXPECT_EQ(boxes[0]->GetValue(), Value(property) == "true");
    }

    void WriteEnum(const sImageProperty& property)
    {
        const auto boxes = Controls<CQTEnumDataWidget>(property.m_sName);
        ASSERT_EQ(boxes.size(), 1);
        ASSERT_FALSE(property.m_vNicknames.empty());
        for (const std::string& nickname : property.m_vNicknames)
        {
            boxes[0]->FinishValueEdit(nickname.c_str(), CInspectorDataElement::eEndEditFocusLost);
            Deliver();
            EXPECT_EQ(Value(property), nickname);
            EXPECT_EQ(Shown(*boxes[0]), nickname);
        }
    }

    void WriteColor(const sImageProperty& property)
    {
        const auto fields = Controls<CQTSimpleDataWidget>(property.m_sName);
        ASSERT_EQ(fields.size(), 4);
        const char* texts[] = {"0.125", "0.6", "1", "0.3333"};
        for (int i = 0; i < 4; ++i)
            fields[i]->FinishValueEdit(texts[i], g_eValidate);
        Deliver();
        for (int i = 0; i < 4; ++i)
        {
            EXPECT_EQ(m_pItem->m_pOperation->GetComponent(property, i), texts[i]) << i;
            EXPECT_EQ(Shown(*fields[i]), texts[i]);
        }
    }

    void WriteText(const sImageProperty& property)
    {
        const bool isUtf8 = GetParam() == CQTTextEncoding::eTextEncodingUtf8;
        const std::string text = isUtf8 ? "a <b> & \u00e9 \u4f60" : "a <b> & ~";
        if (!property.m_bMultiLine)
        {
            WriteField(property, text);
            return;
        }
        const auto boxes = Controls<CQTSimpleTextWidget>(property.m_sName);
        ASSERT_EQ(boxes.size(), 1);
        const std::string lines = text + "\nsecond";
        boxes[0]->setPlainText(QString::fromStdString(lines));
        QFocusEvent out(QEvent::FocusOut);
        QApplication::sendEvent(boxes[0], &out);
        Deliver();
        EXPECT_EQ(Value(property), lines);
    }

    void Write(const sImageProperty& property)
    {
        switch (property.m_eKind)
        {
        case ePropertyNumber:
        case ePropertyInteger:
        case ePropertySeed:
            return WriteNumber(property);
        case ePropertyBool:
            return WriteBool(property);
        case ePropertyEnum:
            return WriteEnum(property);
        case ePropertyColor:
            return WriteColor(property);
        case ePropertyText:
            return WriteText(property);
        case ePropertyFile:
            return WriteField(property, "/no/such/picture.png");
        case ePropertyOther:
            return;
        }
    }
};

} // namespace

TEST_P(CPanelValues, ComeBackFromTheOperation)
{
    int written = 0;
    for (const sOperationInfo& info : GetOperationCatalog())
    {
        Show(info.m_sName);
        ASSERT_TRUE(m_pItem) << info.m_sName;
        for (const sImageProperty& property : info.m_vProperties)
        {
            const testing::ScopedTrace trace(__FILE__, __LINE__,
                                             info.m_sName + ' ' + property.m_sName);
            if (property.m_bReadOnly)
                continue;
            Write(property);
            ++written;
        }
    }
    EXPECT_GT(written, 500);
}

INSTANTIATE_TEST_SUITE_P(InEachEncoding, CPanelValues,
                         testing::Values(CQTTextEncoding::eTextEncodingLatin1,
                                         CQTTextEncoding::eTextEncodingUtf8));
