#include <qtsimpleboolwidget.h>

#include <booldataelement.h>
#include <simpledataelement.h>

#include <qt/declaredin.h>
#include <qt/logginghost.h>
#include <qt/paintcounter.h>
#include <qt/palettes.h>
#include <support/calls.h>
#include <support/images.h>
#include <support/rowname.h>

#include <QMetaObject>
#include <QTest>

#include <gtest/gtest.h>

#include <array>

namespace
{

class CBox : public CQTSimpleBoolWidget
{
public:
    using CQTSimpleBoolWidget::GetSafeData;
    using CQTSimpleBoolWidget::m_bValue;

    static constexpr bool OverridesPaintAndPressOnly()
    {
        return IsDeclaredIn<CQTSimpleBoolWidget>(&CBox::paintEvent) &&
               IsDeclaredIn<CQTSimpleBoolWidget>(&CBox::mousePressEvent) &&
               IsDeclaredIn<QWidget>(&CBox::mouseReleaseEvent) &&
               IsDeclaredIn<QWidget>(&CBox::mouseMoveEvent) &&
               IsDeclaredIn<QWidget>(&CBox::mouseDoubleClickEvent) &&
               IsDeclaredIn<QWidget>(&CBox::keyPressEvent) &&
               IsDeclaredIn<QWidget>(&CBox::wheelEvent) &&
               IsDeclaredIn<QWidget>(&CBox::showEvent) && IsDeclaredIn<QWidget>(&CBox::hideEvent) &&
               IsDeclaredIn<QWidget>(&CBox::focusInEvent) &&
               IsDeclaredIn<QWidget>(&CBox::focusOutEvent) && IsDeclaredIn<QWidget>(&CBox::event);
    }
};

class BoolWidget : public testing::Test
{
protected:
    void SetUp() override
    {
        Bind(m_element, m_box);
        m_box.resize(100, 20);
        m_log.Clear();
    }

    CCallLog m_log;
    CBox m_box;
    TLoggingElement<CBoolDataElement> m_element{m_log, "element"};
};

struct sLook
{
    const char* m_szName;
    int m_iWidth;
    int m_iHeight;
    int m_iBoxWidth;
    int m_iBoxHeight;
    std::array<int, 4> m_aiFirst;  ///< x1, y1, x2, y2 of the line from the top left
    std::array<int, 4> m_aiSecond; ///< and of the line from the bottom left
};

const sLook g_looks[] = {
    {"AsItWishes", 20, 20, 20, 20, {7, 7, 13, 13}, {7, 13, 13, 7}},
    {"Wide", 120, 20, 20, 20, {7, 7, 13, 13}, {7, 13, 13, 7}},
    {"High", 20, 90, 20, 20, {7, 7, 13, 13}, {7, 13, 13, 7}},
    {"Large", 60, 50, 20, 20, {7, 7, 13, 13}, {7, 13, 13, 7}},
    {"OneLess", 19, 19, 19, 19, {7, 7, 12, 12}, {7, 12, 12, 7}},
    {"TenByTen", 10, 10, 10, 10, {7, 7, 3, 3}, {7, 3, 3, 7}},
    {"Narrow", 12, 20, 12, 20, {7, 7, 5, 13}, {7, 13, 5, 7}},
    {"Low", 20, 12, 20, 12, {7, 7, 13, 5}, {7, 5, 13, 7}},
    {"NoRoomForTheCross", 3, 3, 3, 3, {7, 7, -4, -4}, {7, -4, -4, 7}},
};

class BoolWidgetLook : public BoolWidget, public testing::WithParamInterface<sLook>
{
protected:
    void ExpectLook(bool crossed)
    {
        const sLook& look = GetParam();
        m_box.resize(look.m_iWidth, look.m_iHeight);
        m_box.m_bValue = crossed;
        const QPalette palette = m_box.palette();
        const QImage expected =
            images::Paint(m_box,
                          [&](QPainter& painter)
                          {
                              painter.fillRect(0, 0, look.m_iBoxWidth, look.m_iBoxHeight,
                                               palette.color(QPalette::Base));
                              if (!crossed)
                                  return;
                              painter.setPen(palette.color(QPalette::WindowText));
                              for (const auto& [x1, y1, x2, y2] : {look.m_aiFirst, look.m_aiSecond})
                                  painter.drawLine(x1, y1, x2, y2);
                          });
        images::ExpectSame(images::Render(m_box), expected);
    }
};

} // namespace

TEST_F(BoolWidget, IsAQtWidgetFirstAndADataWidgetSecond)
{
    static_assert(std::is_base_of_v<QWidget, CQTSimpleBoolWidget>);
    EXPECT_EQ(OffsetOf<QWidget>(m_box), 0);
    EXPECT_LT(OffsetOf<QWidget>(m_box), OffsetOf<CInspectorDataWidget>(m_box));
}

TEST_F(BoolWidget, AnswersToTheNamesOfItsBases)
{
    CInspectorDataWidget* data = &m_box;
    EXPECT_STREQ(m_box.metaObject()->className(), "CQTSimpleBoolWidget");
    EXPECT_EQ(m_box.qt_metacast("CQTSimpleBoolWidget"), static_cast<CQTSimpleBoolWidget*>(&m_box));
    EXPECT_EQ(m_box.qt_metacast("CInspectorDataWidget"), data);
    EXPECT_EQ(m_box.qt_metacast("QWidget"), static_cast<QWidget*>(&m_box));
    EXPECT_EQ(m_box.qt_metacast("ISimpleDataProvider"), nullptr);
    EXPECT_EQ(m_box.qt_metacast("IInPlaceEditSink"), nullptr);
}

TEST_F(BoolWidget, HasNoSignalsAndSlotsOfItsOwn)
{
    const QMetaObject& meta = CQTSimpleBoolWidget::staticMetaObject;
    EXPECT_STREQ(meta.superClass()->className(), "QWidget");
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

TEST_F(BoolWidget, OverridesThePaintAndPressHandlersOnly)
{
    EXPECT_TRUE(CBox::OverridesPaintAndPressOnly());
}

TEST_F(BoolWidget, KeepsTheContractsOperationsThatItDoesNotNeed)
{
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CBox::SetDataElement));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CBox::StartEditing));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CBox::OnTopoChange));
    EXPECT_TRUE(IsDeclaredIn<CQTSimpleBoolWidget>(&CBox::OnValueChange));
}

TEST_F(BoolWidget, HasItsTypeStringAndSize)
{
    EXPECT_STREQ(m_box.GetType(), "qt.simple.bool");
    EXPECT_EQ(m_box.GetRequiredWidth(), 20);
    for (const int width : {-1, 0, 20, 5000})
        EXPECT_EQ(m_box.GetRequiredHeight(width), 20);
}

TEST_F(BoolWidget, StartsAsAFalseWindowlessWidgetWithoutParent)
{
    const CQTSimpleBoolWidget fresh;
    EXPECT_EQ(fresh.parent(), nullptr);
    EXPECT_EQ(fresh.windowFlags(), QWidget().windowFlags());
    EXPECT_FALSE(m_box.GetValue());
}

TEST_F(BoolWidget, HandsTheLayoutOnToQt)
{
    QWidget panel;
    m_box.setParent(&panel);
    m_box.MoveWidget(-7, 12);
    m_box.ResizeWidget(33, 44);
    EXPECT_EQ(m_box.geometry(), QRect(-7, 12, 33, 44));
    m_box.Show();
    EXPECT_FALSE(m_box.isHidden());
    m_box.Hide();
    EXPECT_TRUE(m_box.isHidden());
    m_box.setParent(nullptr);
}

TEST_F(BoolWidget, KnowsItsElementOnlyWhenItIsABool)
{
    EXPECT_EQ(m_box.GetSafeData(), &m_element);
    CSimpleDataElement text;
    m_box.SetDataElement(&text);
    EXPECT_EQ(m_box.GetSafeData(), nullptr);
    m_box.SetDataElement(nullptr);
    EXPECT_EQ(m_box.GetSafeData(), nullptr);
}

TEST_F(BoolWidget, TakesTheValueOfItsElement)
{
    m_element.SetValue(true);
    EXPECT_FALSE(m_box.GetValue());
    m_box.InitFromElement();
    EXPECT_TRUE(m_box.GetValue());
    m_element.SetValue(false);
    m_box.OnValueChange(nullptr);
    EXPECT_FALSE(m_box.GetValue());
    CInspectorDataWidget::sValueChangeInfo info;
    info.m_iCode = 77;
    m_element.SetValue(true);
    m_box.OnValueChange(&info);
    EXPECT_TRUE(m_box.GetValue());
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(BoolWidget, RepaintsForANewValueAndForAPress)
{
    CPaintCounter paints(m_box);
    m_box.OnValueChange(nullptr);
    EXPECT_EQ(paints.Take(), 1);
    m_box.InitFromElement();
    EXPECT_EQ(paints.Take(), 1);
    QTest::mouseClick(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(5, 5));
    EXPECT_EQ(paints.Take(), 1);
    QTest::mouseClick(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(25, 5));
    EXPECT_EQ(paints.Take(), 0);
}

TEST_P(BoolWidgetLook, IsAnEmptyBoxForFalse)
{
    ExpectLook(false);
}

TEST_P(BoolWidgetLook, IsACrossedBoxForTrue)
{
    ExpectLook(true);
}

TEST_P(BoolWidgetLook, TakesItsColoursFromTheGroupOfItsState)
{
    m_box.setPalette(DarkPalette());
    ExpectLook(true);
    m_box.setEnabled(false);
    ExpectLook(true);
}

INSTANTIATE_TEST_SUITE_P(Sizes, BoolWidgetLook, testing::ValuesIn(g_looks), sRowName());

TEST_F(BoolWidget, PaintsNothingOutsideOfItsBox)
{
    m_box.setPalette(PaletteOnGround());
    m_box.resize(60, 50);
    m_box.m_bValue = true;
    EXPECT_EQ(InkOn(images::Render(m_box)), QRect(0, 0, 20, 20));
}

TEST_F(BoolWidget, LooksTheSameForAReadOnlyElement)
{
    m_box.m_bValue = true;
    const QImage before = images::Render(m_box);
    m_element.SetReadOnly(true);
    images::ExpectSame(images::Render(m_box), before);
}

TEST_F(BoolWidget, IsToggledInItsFirstTwentyColumns)
{
    m_box.resize(100, 60);
    bool expected = false;
    for (const QPoint& place : {QPoint(0, 1), QPoint(19, 0), QPoint(19, 19), QPoint(0, 20),
                                QPoint(19, 59), QPoint(10, 40)})
    {
        expected = !expected;
        QTest::mouseClick(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), place);
        EXPECT_EQ(m_box.GetValue(), expected) << place.x() << "," << place.y();
        EXPECT_EQ(m_element.GetValue(), expected);
    }
    for (const QPoint& place : {QPoint(20, 0), QPoint(20, 19), QPoint(99, 59)})
    {
        QTest::mouseClick(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), place);
        EXPECT_EQ(m_box.GetValue(), expected) << place.x() << "," << place.y();
    }
}

TEST_F(BoolWidget, IsToggledByAnyButton)
{
    bool expected = false;
    for (const Qt::MouseButton button :
         {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
    {
        expected = !expected;
        QTest::mouseClick(&m_box, button, Qt::KeyboardModifiers(), QPoint(5, 5));
        EXPECT_EQ(m_element.GetValue(), expected) << button;
    }
}

TEST_F(BoolWidget, IsToggledByThePressAndNotAgainByTheRelease)
{
    QTest::mousePress(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(5, 5));
    EXPECT_TRUE(m_element.GetValue());
    QTest::mouseRelease(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(5, 5));
    EXPECT_TRUE(m_element.GetValue());
}

TEST_F(BoolWidget, TellsTheElementOnceAfterItHasToggled)
{
    bool seen = false;
    m_element.m_fnOnCtrlValueChange = [&] { seen = m_box.GetValue(); };
    QTest::mouseClick(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(5, 5));
    EXPECT_TRUE(seen);
    EXPECT_EQ(m_log.Take(),
              (CCalls{"element.OnCtrlValueChange()", "element.InternalValueChanged()"}));
}

TEST_F(BoolWidget, LeavesAReadOnlyElementAlone)
{
    m_element.SetReadOnly(true);
    QTest::mouseClick(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(5, 5));
    EXPECT_FALSE(m_box.GetValue());
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(BoolWidget, IgnoresAPressWithoutABoolElement)
{
    CSimpleDataElement text;
    m_box.SetDataElement(&text);
    QTest::mouseClick(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(5, 5));
    m_box.SetDataElement(nullptr);
    QTest::mouseClick(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(5, 5));
    EXPECT_FALSE(m_box.GetValue());
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(BoolWidget, ShowsItsOwnValueUntilItIsToldOfTheElements)
{
    m_element.SetValue(true);
    QTest::mouseClick(&m_box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(5, 5));
    EXPECT_TRUE(m_box.GetValue());
    // Both are true now: the element sees no difference and calls no hook.
    EXPECT_EQ(m_log.Take(), CCalls{"element.OnCtrlValueChange()"});
}
