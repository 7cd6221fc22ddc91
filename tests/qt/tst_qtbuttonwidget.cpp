#include <qtbuttonwidget.h>

#include <buttondataelement.h>
#include <simpledataelement.h>

#include <qt/declaredin.h>
#include <qt/logginghost.h>
#include <qt/paintcounter.h>
#include <qt/palettes.h>
#include <support/calls.h>
#include <support/images.h>
#include <support/recordingcontroller.h>
#include <support/rowname.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QMetaObject>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>
#include <QTextOption>

#include <gtest/gtest.h>

namespace
{

class CPushButton : public CQTButtonWidget
{
public:
    using CQTButtonWidget::GetSafeData;
    using CQTButtonWidget::m_rectButton;

    static constexpr bool OverridesPaintAndPressOnly()
    {
        return IsDeclaredIn<CQTButtonWidget>(&CPushButton::paintEvent) &&
               IsDeclaredIn<CQTButtonWidget>(&CPushButton::mousePressEvent) &&
               IsDeclaredIn<QWidget>(&CPushButton::mouseReleaseEvent) &&
               IsDeclaredIn<QWidget>(&CPushButton::mouseDoubleClickEvent) &&
               IsDeclaredIn<QWidget>(&CPushButton::keyPressEvent) &&
               IsDeclaredIn<QWidget>(&CPushButton::wheelEvent) &&
               IsDeclaredIn<QWidget>(&CPushButton::showEvent) &&
               IsDeclaredIn<QWidget>(&CPushButton::hideEvent) &&
               IsDeclaredIn<QWidget>(&CPushButton::focusOutEvent) &&
               IsDeclaredIn<QWidget>(&CPushButton::event);
    }
};

/// A button element that logs the press.
class CButton : public TRecordingElement<CButtonDataElement>
{
public:
    using TRecordingElement::TRecordingElement;

    void OnCtrlValueChange(CInspectorDataWidget* widget) override
    {
        m_log.Add(m_sName, "OnCtrlValueChange", {widget == m_pWidget ? "its widget" : "another"});
        CButtonDataElement::OnCtrlValueChange(widget);
    }
};

class ButtonWidget : public testing::Test
{
protected:
    void SetUp() override
    {
        m_element.SetDataControl(&m_button, &m_controller);
        m_button.SetDataElement(&m_element);
        m_element.SetText("Run");
        m_element.SetCommandString("run");
        m_element.SetEnable(true);
        m_button.resize(200, 20);
        m_controller.SetInspectorView(nullptr);
        m_log.Clear();
    }

    /// Makes the text of the button exactly so many pixels wide.
    void SetTextWidth(qreal width)
    {
        QFont font = m_button.font();
        font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
        m_button.setFont(font);
        m_element.SetText("o");
        font.setLetterSpacing(QFont::AbsoluteSpacing, width - MeasureText());
        m_button.setFont(font);
        ASSERT_EQ(MeasureText(), width);
    }

    qreal MeasureText()
    {
        QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        painter.setFont(m_button.font());
        return painter
            .boundingRect(QRectF(0, 0, m_button.width(), 20),
                          QString::fromStdString(m_element.GetText()), QTextOption())
            .width();
    }

    void Press(int x, int y, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(&m_button, button, Qt::KeyboardModifiers(), QPoint(x, y));
    }

    /// What a press brings about: the call of the element, and the command when it is enabled.
    CCalls Pressed() { return m_log.Take(); }

    /// The button as the test paints it, with a face of the given columns.
    QImage Expected(int left, int right, bool enabled)
    {
        return images::Paint(m_button,
                             [&](QPainter& painter)
                             {
                                 QStyleOptionButton option;
                                 option.initFrom(&m_button);
                                 option.state = QStyle::State_Raised;
                                 if (!enabled)
                                     option.palette.setCurrentColorGroup(QPalette::Disabled);
                                 option.rect.setCoords(left, 0, right, 19);
                                 option.text = QString::fromStdString(m_element.GetText());
                                 QApplication::style()->drawControl(QStyle::CE_PushButton, &option,
                                                                    &painter, &m_button);
                             });
    }

    CCallLog m_log;
    CRecordingController m_controller{m_log};
    CPushButton m_button;
    CButton m_element{m_log, "element", 7ul};
};

const CCalls g_pressed = {"element.OnCtrlValueChange(its widget)",
                          "controller.CallCommand(run, 7)"};

struct sFace
{
    const char* m_szName;
    int m_iWidth;
    qreal m_dTextWidth;
    int m_iLeft;
    int m_iRight;
};

const sFace g_faces[] = {
    {"FiftyInTwoHundred", 200, 50, 74, 126},
    {"OddRestIsCutTowardZero", 201, 50, 74, 127},
    {"FractionOfAPixelIsCut", 200, 50.5, 73, 127},
    {"OneMorePixelThanTheText", 51, 50, 0, 50},
    {"AndAHalf", 51, 49.5, -1, 52},
    {"TwoMorePixels", 52, 50, 0, 52},
    {"ThreeMorePixels", 53, 50, 0, 53},
    {"ExactlyTheText", 50, 50, 0, 49},
    {"OnePixelTooFewToBeCentred", 51, 50.5, 0, 50},
    {"NarrowerThanTheText", 30, 50, 0, 29},
};

class ButtonWidgetFace : public ButtonWidget, public testing::WithParamInterface<sFace>
{
};

} // namespace

TEST_F(ButtonWidget, IsAQtWidgetFirstAndADataWidgetSecond)
{
    EXPECT_EQ(OffsetOf<QWidget>(m_button), 0);
    EXPECT_LT(OffsetOf<QWidget>(m_button), OffsetOf<CInspectorDataWidget>(m_button));
}

TEST_F(ButtonWidget, AnswersToTheNamesOfItsBases)
{
    CInspectorDataWidget* data = &m_button;
    EXPECT_STREQ(m_button.metaObject()->className(), "CQTButtonWidget");
    EXPECT_EQ(m_button.qt_metacast("CQTButtonWidget"), static_cast<CQTButtonWidget*>(&m_button));
    EXPECT_EQ(m_button.qt_metacast("CInspectorDataWidget"), data);
    EXPECT_EQ(m_button.qt_metacast("QWidget"), static_cast<QWidget*>(&m_button));
    EXPECT_EQ(m_button.qt_metacast("ISimpleDataProvider"), nullptr);
    EXPECT_EQ(m_button.qt_metacast("IInPlaceEditSink"), nullptr);
}

TEST_F(ButtonWidget, HasNoSignalsAndSlotsOfItsOwn)
{
    const QMetaObject& meta = CQTButtonWidget::staticMetaObject;
    EXPECT_STREQ(meta.superClass()->className(), "QWidget");
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

TEST_F(ButtonWidget, OverridesThePaintAndPressHandlersOnly)
{
    EXPECT_TRUE(CPushButton::OverridesPaintAndPressOnly());
}

TEST_F(ButtonWidget, KeepsTheContractsOperationsThatItDoesNotNeed)
{
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CPushButton::SetDataElement));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CPushButton::StartEditing));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CPushButton::OnValueChange));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CPushButton::OnTopoChange));
}

TEST_F(ButtonWidget, HasItsTypeStringAndSize)
{
    EXPECT_STREQ(m_button.GetType(), "qt.button");
    EXPECT_EQ(m_button.GetRequiredWidth(), -1);
    for (const int width : {-1, 0, 20, 5000})
        EXPECT_EQ(m_button.GetRequiredHeight(width), 20);
}

TEST_F(ButtonWidget, HandsTheLayoutOnToQt)
{
    QWidget panel;
    m_button.setParent(&panel);
    m_button.MoveWidget(-7, 12);
    m_button.ResizeWidget(33, 44);
    EXPECT_EQ(m_button.geometry(), QRect(-7, 12, 33, 44));
    m_button.Show();
    EXPECT_FALSE(m_button.isHidden());
    m_button.Hide();
    EXPECT_TRUE(m_button.isHidden());
    m_button.setParent(nullptr);
}

TEST_F(ButtonWidget, KnowsItsElementOnlyWhenItIsAButton)
{
    EXPECT_EQ(m_button.GetSafeData(), &m_element);
    CSimpleDataElement text;
    m_button.SetDataElement(&text);
    EXPECT_EQ(m_button.GetSafeData(), nullptr);
    m_button.SetDataElement(nullptr);
    EXPECT_EQ(m_button.GetSafeData(), nullptr);
}

TEST_F(ButtonWidget, ReadsItsElementOnlyWhenItPaints)
{
    const QImage before = images::Render(m_button);
    CPaintCounter paints(m_button);
    m_element.SetText("Stop");
    m_button.InitFromElement();
    m_button.OnValueChange(nullptr);
    EXPECT_EQ(paints.Take(), 0);
    EXPECT_GT(images::CountDifferent(images::Render(m_button), before), 0);
}

TEST_F(ButtonWidget, HasNoFaceBeforeItWasPainted)
{
    EXPECT_EQ(m_button.m_rectButton, QRect(QPoint(0, 0), QPoint(-1, -1)));
    for (const QPoint& place : {QPoint(0, 1), QPoint(100, 10)})
    {
        Press(place.x(), place.y());
        EXPECT_EQ(Pressed(), CCalls());
    }
}

TEST_P(ButtonWidgetFace, IsCentredOnItsTextWhereThereIsRoom)
{
    const sFace& face = GetParam();
    m_button.resize(face.m_iWidth, 20);
    ASSERT_NO_FATAL_FAILURE(SetTextWidth(face.m_dTextWidth));
    const QImage painted = images::Render(m_button);
    EXPECT_EQ(m_button.m_rectButton, QRect(QPoint(face.m_iLeft, 0), QPoint(face.m_iRight, 19)));
    images::ExpectSame(painted, Expected(face.m_iLeft, face.m_iRight, true));
}

INSTANTIATE_TEST_SUITE_P(Widths, ButtonWidgetFace, testing::ValuesIn(g_faces), sRowName());

TEST_F(ButtonWidget, IsTwentyRowsHighWhateverItsHeight)
{
    ASSERT_NO_FATAL_FAILURE(SetTextWidth(50));
    m_button.setPalette(PaletteOnGround());
    for (const int height : {60, 20, 8})
    {
        m_button.resize(200, height);
        const QImage painted = images::Render(m_button);
        EXPECT_EQ(m_button.m_rectButton, QRect(74, 0, 53, 20));
        images::ExpectSame(painted, Expected(74, 126, true));
        EXPECT_LT(InkOn(painted).bottom(), 20);
    }
}

TEST_F(ButtonWidget, LeavesTheBackgroundBesideItsFaceAlone)
{
    ASSERT_NO_FATAL_FAILURE(SetTextWidth(50));
    m_button.setPalette(PaletteOnGround());
    const QRect ink = InkOn(images::Render(m_button));
    EXPECT_GE(ink.left(), 74);
    EXPECT_LE(ink.right(), 126);
}

TEST_F(ButtonWidget, IsGreyWhenItsElementIsDisabled)
{
    ASSERT_NO_FATAL_FAILURE(SetTextWidth(50));
    const QImage enabled = images::Render(m_button);
    m_element.SetEnable(false);
    const QImage disabled = images::Render(m_button);
    images::ExpectSame(disabled, Expected(74, 126, false));
    EXPECT_GT(images::CountDifferent(disabled, enabled), 0);
}

TEST_F(ButtonWidget, LooksTheSameWithFocusAndUnderTheMouse)
{
    const QImage before = images::Render(m_button);
    m_button.setFocusPolicy(Qt::StrongFocus);
    m_button.show();
    m_button.activateWindow();
    m_button.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_button));
    m_button.setAttribute(Qt::WA_UnderMouse);
    ASSERT_TRUE(m_button.hasFocus());
    images::ExpectSame(images::Render(m_button), before);
}

TEST_F(ButtonWidget, TakesItsColoursFromItsPalette)
{
    ASSERT_NO_FATAL_FAILURE(SetTextWidth(50));
    const QImage light = images::Render(m_button);
    m_button.setPalette(DarkPalette());
    images::ExpectSame(images::Render(m_button), Expected(74, 126, true));
    EXPECT_GT(images::CountDifferent(images::Render(m_button), light), 0);
}

TEST_F(ButtonWidget, PaintsAnEmptyTextAsASmallFaceInTheMiddle)
{
    m_element.SetText("");
    const QImage painted = images::Render(m_button);
    EXPECT_EQ(m_button.m_rectButton, QRect(QPoint(99, 0), QPoint(101, 19)));
    images::ExpectSame(painted, Expected(99, 101, true));
}

TEST_F(ButtonWidget, IsPressedOnItsFaceBorderIncluded)
{
    m_button.resize(200, 40);
    ASSERT_NO_FATAL_FAILURE(SetTextWidth(50));
    images::Render(m_button);
    for (const QPoint& place :
         {QPoint(74, 0), QPoint(126, 0), QPoint(74, 19), QPoint(126, 19), QPoint(100, 10)})
    {
        Press(place.x(), place.y());
        EXPECT_EQ(Pressed(), g_pressed) << place.x() << "," << place.y();
    }
    for (const QPoint& place :
         {QPoint(73, 10), QPoint(127, 10), QPoint(100, 20), QPoint(0, 1), QPoint(199, 39)})
    {
        Press(place.x(), place.y());
        EXPECT_EQ(Pressed(), CCalls()) << place.x() << "," << place.y();
    }
}

TEST_F(ButtonWidget, IsPressedOnTheFaceThatWasPaintedLast)
{
    ASSERT_NO_FATAL_FAILURE(SetTextWidth(50));
    images::Render(m_button);
    m_button.resize(400, 20);
    Press(100, 10);
    EXPECT_EQ(Pressed(), g_pressed);
    images::Render(m_button);
    Press(100, 10);
    EXPECT_EQ(Pressed(), CCalls());
    Press(200, 10);
    EXPECT_EQ(Pressed(), g_pressed);
}

TEST_F(ButtonWidget, IsPressedByAnyButtonAndNotAgainByTheRelease)
{
    images::Render(m_button);
    for (const Qt::MouseButton button :
         {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
    {
        QTest::mouseClick(&m_button, button, Qt::KeyboardModifiers(), QPoint(100, 10));
        EXPECT_EQ(Pressed(), g_pressed) << button;
    }
}

TEST_F(ButtonWidget, TellsADisabledElementOfThePressWhichSendsNothing)
{
    images::Render(m_button);
    m_element.SetEnable(false);
    Press(100, 10);
    EXPECT_EQ(Pressed(), CCalls{"element.OnCtrlValueChange(its widget)"});
}

TEST_F(ButtonWidget, RepaintsForAPressOnItsFaceOnly)
{
    CPaintCounter paints(m_button);
    Press(100, 10);
    EXPECT_EQ(paints.Take(), 1);
    Press(0, 10);
    EXPECT_EQ(paints.Take(), 0);
}

TEST_F(ButtonWidget, SurvivesACommandThatMakesItForgetItsElement)
{
    images::Render(m_button);
    m_controller.m_fnCallCommand = [this] { m_button.SetDataElement(nullptr); };
    Press(100, 10);
    EXPECT_EQ(Pressed(), g_pressed);
}
