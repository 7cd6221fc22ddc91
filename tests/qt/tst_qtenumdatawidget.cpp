#include <qtenumdatawidget.h>

#include <booldataelement.h>
#include <enumdataelement.h>
#include <simpledataelement.h>

#include <inspector/qt/inplacelist.h>

#include <qttextencoding.h>

#include <qt/declaredin.h>
#include <qt/logginghost.h>
#include <qt/paintcounter.h>
#include <qt/palettes.h>
#include <support/calls.h>
#include <support/images.h>
#include <support/rowname.h>

#include <QApplication>
#include <QMetaObject>
#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace
{

class CChoice : public CQTEnumDataWidget
{
public:
    using CQTEnumDataWidget::GetSafeControlDataProvider;
    using CQTEnumDataWidget::GetSafeEnumData;
    using CQTEnumDataWidget::m_iSortingMethod;
    using CQTEnumDataWidget::m_pInPlaceList;
    using CQTEnumDataWidget::m_sText;
    using CQTEnumDataWidget::mousePressEvent;

    static constexpr bool OverridesPaintAndPressOnly()
    {
        return IsDeclaredIn<CQTEnumDataWidget>(&CChoice::paintEvent) &&
               IsDeclaredIn<CQTEnumDataWidget>(&CChoice::mousePressEvent) &&
               IsDeclaredIn<QWidget>(&CChoice::mouseReleaseEvent) &&
               IsDeclaredIn<QWidget>(&CChoice::mouseDoubleClickEvent) &&
               IsDeclaredIn<QWidget>(&CChoice::keyPressEvent) &&
               IsDeclaredIn<QWidget>(&CChoice::wheelEvent) &&
               IsDeclaredIn<QWidget>(&CChoice::showEvent) &&
               IsDeclaredIn<QWidget>(&CChoice::hideEvent) &&
               IsDeclaredIn<QWidget>(&CChoice::focusOutEvent) &&
               IsDeclaredIn<QWidget>(&CChoice::event);
    }
};

class EnumWidget : public testing::Test
{
protected:
    void SetUp() override
    {
        Bind(m_element, m_choice);
        m_element.m_fnOnEndEditing = [] {};
        m_element.CreateEnum();
        m_element.AddEnum("10", "ten");
        m_element.AddEnum("9", "nine");
        m_element.AddEnum("a", "letter");
        Load("9");
        m_choice.resize(120, 20);
        m_log.Clear();
    }

    void Load(const std::string& value)
    {
        m_element.SetStrCurrentValue(value);
        m_choice.OnValueChange(nullptr);
    }

    std::string Text()
    {
        std::string text = "overwritten";
        m_choice.GetDataAsString(text);
        return text;
    }

    static CInPlaceList& List() { return *CQTEnumDataWidget::g_pInPlaceList; }

    void DropDown(Qt::MouseButton button = Qt::LeftButton) { QTest::mouseClick(&m_choice, button); }

    static void ClickEntry(int row)
    {
        QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::KeyboardModifiers(),
                          List().visualItemRect(List().item(row)).center());
    }

    static std::vector<std::string> OfferedLabels()
    {
        std::vector<std::string> labels;
        for (int row = 0; row < List().count(); ++row)
            labels.push_back(List().item(row)->text().toStdString());
        return labels;
    }

    /// The closed box as the test paints it, with a label.
    QImage Expected(const QString& label)
    {
        return images::Paint(m_choice,
                             [&](QPainter& painter)
                             {
                                 painter.fillRect(0, 0, m_choice.width(), m_choice.height(),
                                                  m_choice.palette().color(QPalette::Base));
                                 QStyleOptionComboBox option;
                                 option.rect = QRect(0, 0, m_choice.width(), m_choice.height());
                                 option.state = QStyle::State_Enabled;
                                 QApplication::style()->drawComplexControl(
                                     QStyle::CC_ComboBox, &option, &painter, nullptr);
                                 painter.drawText(3, 0, m_choice.width(), m_choice.height(),
                                                  Qt::AlignLeft | Qt::AlignVCenter, label);
                             });
    }

    CCallLog m_log;
    TLoggingField<CChoice> m_choice{m_log, "choice"};
    TLoggingElement<CEnumDataElement> m_element{m_log, "element"};
};

struct sSorting
{
    const char* m_szName;
    int m_iMethod;
    std::vector<std::string> m_vLabels;
};

const sSorting g_sortings[] = {
    {"ByValue", 0, {"ten", "nine", "letter"}},   {"ByLabel", 1, {"letter", "nine", "ten"}},
    {"AsDefined", 2, {"ten", "nine", "letter"}}, {"ByNumber", 3, {"letter", "nine", "ten"}},
    {"Unknown", 17, {"ten", "nine", "letter"}},  {"Negative", -1, {"ten", "nine", "letter"}},
};

class EnumWidgetSorting : public EnumWidget, public testing::WithParamInterface<sSorting>
{
};

} // namespace

TEST_F(EnumWidget, HasItsBasesInOrder)
{
    EXPECT_EQ(OffsetOf<QWidget>(m_choice), 0);
    EXPECT_LT(OffsetOf<QWidget>(m_choice), OffsetOf<CInspectorDataWidget>(m_choice));
    EXPECT_LT(OffsetOf<CInspectorDataWidget>(m_choice), OffsetOf<ISimpleDataProvider>(m_choice));
    EXPECT_LT(OffsetOf<ISimpleDataProvider>(m_choice), OffsetOf<IInPlaceEditSink>(m_choice));
}

TEST_F(EnumWidget, AnswersToTheNamesOfItsBases)
{
    CInspectorDataWidget* data = &m_choice;
    ISimpleDataProvider* provider = &m_choice;
    IInPlaceEditSink* sink = &m_choice;
    EXPECT_STREQ(m_choice.metaObject()->className(), "CQTEnumDataWidget");
    EXPECT_EQ(m_choice.qt_metacast("CQTEnumDataWidget"),
              static_cast<CQTEnumDataWidget*>(&m_choice));
    EXPECT_EQ(m_choice.qt_metacast("CInspectorDataWidget"), data);
    EXPECT_EQ(m_choice.qt_metacast("ISimpleDataProvider"), provider);
    EXPECT_EQ(m_choice.qt_metacast("IInPlaceEditSink"), sink);
    EXPECT_EQ(m_choice.qt_metacast("QWidget"), static_cast<QWidget*>(&m_choice));
    EXPECT_EQ(m_choice.qt_metacast("QListWidget"), nullptr);
}

TEST_F(EnumWidget, HasNoSignalsAndSlotsOfItsOwn)
{
    const QMetaObject& meta = CQTEnumDataWidget::staticMetaObject;
    EXPECT_STREQ(meta.superClass()->className(), "QWidget");
    EXPECT_EQ(meta.methodCount(), meta.methodOffset());
    EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

TEST_F(EnumWidget, OverridesThePaintAndPressHandlersOnly)
{
    EXPECT_TRUE(CChoice::OverridesPaintAndPressOnly());
}

TEST_F(EnumWidget, KeepsTheContractsOperationsThatItDoesNotNeed)
{
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CChoice::SetDataElement));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CChoice::StartEditing));
    EXPECT_TRUE(IsDeclaredIn<CQTEnumDataWidget>(&CChoice::OnValueChange));
    EXPECT_TRUE(IsDeclaredIn<CInspectorDataWidget>(&CChoice::OnTopoChange));
}

TEST_F(EnumWidget, HasItsTypeStringAndSize)
{
    EXPECT_STREQ(m_choice.GetType(), "qt.simple.enum");
    EXPECT_EQ(m_choice.GetRequiredWidth(), -1);
    for (const int width : {-1, 0, 20, 5000})
        EXPECT_EQ(m_choice.GetRequiredHeight(width), 20);
}

TEST_F(EnumWidget, StartsEmptyAndUnsorted)
{
    const CChoice fresh;
    EXPECT_EQ(fresh.m_sText, QString());
    EXPECT_EQ(fresh.m_iSortingMethod, 2);
    EXPECT_EQ(fresh.m_pInPlaceList, CQTEnumDataWidget::g_pInPlaceList);
    EXPECT_EQ(fresh.parent(), nullptr);
}

TEST_F(EnumWidget, HandsTheLayoutOnToQt)
{
    QWidget panel;
    m_choice.setParent(&panel);
    m_choice.MoveWidget(-7, 12);
    m_choice.ResizeWidget(33, 44);
    EXPECT_EQ(m_choice.geometry(), QRect(-7, 12, 33, 44));
    m_choice.Show();
    EXPECT_FALSE(m_choice.isHidden());
    m_choice.Hide();
    EXPECT_TRUE(m_choice.isHidden());
    m_choice.setParent(nullptr);
}

TEST_F(EnumWidget, KnowsItsElementByWhatItIs)
{
    EXPECT_EQ(m_choice.GetSafeEnumData(), &m_element);
    EXPECT_EQ(m_choice.GetSafeControlDataProvider(), static_cast<ISimpleDataProvider*>(&m_element));
    CSimpleDataElement text;
    m_choice.SetDataElement(&text);
    EXPECT_EQ(m_choice.GetSafeEnumData(), nullptr);
    EXPECT_EQ(m_choice.GetSafeControlDataProvider(), static_cast<ISimpleDataProvider*>(&text));
    CBoolDataElement other;
    m_choice.SetDataElement(&other);
    EXPECT_EQ(m_choice.GetSafeControlDataProvider(), nullptr);
    m_choice.SetDataElement(nullptr);
    EXPECT_EQ(m_choice.GetSafeEnumData(), nullptr);
    EXPECT_EQ(m_choice.GetSafeControlDataProvider(), nullptr);
}

TEST_F(EnumWidget, TakesTheValueAndNotTheLabel)
{
    EXPECT_EQ(Text(), "9");
    m_element.SetStrCurrentValue("10");
    m_choice.InitFromElement();
    EXPECT_EQ(Text(), "10");
    CInspectorDataWidget::sValueChangeInfo info;
    info.m_iCode = 77;
    m_element.SetStrCurrentValue("a");
    m_choice.OnValueChange(&info);
    EXPECT_EQ(Text(), "a");
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(EnumWidget, KeepsItsTextWithoutAnElementThatHasOne)
{
    CBoolDataElement other;
    for (CInspectorDataElement* element : {static_cast<CInspectorDataElement*>(&other),
                                           static_cast<CInspectorDataElement*>(nullptr)})
    {
        m_choice.SetDataElement(element);
        m_choice.InitFromElement();
        m_choice.OnValueChange(nullptr);
        EXPECT_EQ(Text(), "9");
    }
}

TEST_F(EnumWidget, RepaintsForAChangedValueButNotWhenItIsInitialised)
{
    CPaintCounter paints(m_choice);
    m_choice.InitFromElement();
    EXPECT_EQ(paints.Take(), 0);
    m_choice.OnValueChange(nullptr);
    EXPECT_EQ(paints.Take(), 1);
    m_choice.SetDataElement(nullptr);
    m_choice.OnValueChange(nullptr);
    EXPECT_EQ(paints.Take(), 1);
}

TEST_F(EnumWidget, GivesItsTextUpToTheFirstZeroByte)
{
    Load(std::string("ab\0cd", 5));
    EXPECT_EQ(Text(), "ab");
}

TEST_F(EnumWidget, HandsAChosenValueOnAndThenTheCause)
{
    m_choice.FinishValueEdit("a", CInspectorDataElement::eEndEditFocusLost);
    EXPECT_EQ(Text(), "a");
    EXPECT_EQ(m_element.GetStrCurrentValue(), "a");
    EXPECT_EQ(m_log.Take(), (CCalls{"choice.FinishValueEdit(a, 4)", "element.OnCtrlValueChange()",
                                    "element.InternalValueChanged()", "element.OnEndEditing(4)"}));
}

TEST_F(EnumWidget, IsAComboBoxWithTheLabelOfItsValue)
{
    images::ExpectSame(images::Render(m_choice), Expected(QStringLiteral("nine")));
    m_choice.resize(60, 45);
    Load("a");
    images::ExpectSame(images::Render(m_choice), Expected(QStringLiteral("letter")));
    m_choice.resize(9, 7);
    images::ExpectSame(images::Render(m_choice), Expected(QStringLiteral("letter")));
}

TEST_F(EnumWidget, PaintsNoLabelForAnUnknownOrEmptyValue)
{
    const QImage empty = Expected(QString());
    EXPECT_GT(images::CountDifferent(images::Render(m_choice), empty), 0);
    for (const char* value : {"", "unknown", "ten", "91"})
    {
        Load(value);
        images::ExpectSame(images::Render(m_choice), empty);
    }
}

TEST_F(EnumWidget, PaintsNoLabelWithoutADefinitionOrAnElement)
{
    const QImage empty = Expected(QString());
    m_element.SetExternalEnum(nullptr);
    images::ExpectSame(images::Render(m_choice), empty);
    m_choice.SetDataElement(nullptr);
    images::ExpectSame(images::Render(m_choice), empty);
}

TEST_F(EnumWidget, PaintsTheLabelOfTheMapAndOffersThoseOfTheEntries)
{
    m_element.AddEnum("9", "Nine");
    images::ExpectSame(images::Render(m_choice), Expected(QStringLiteral("Nine")));
    m_element.ClearEnum();
    images::ExpectSame(images::Render(m_choice), Expected(QString()));
    DropDown();
    EXPECT_EQ(OfferedLabels(), (std::vector<std::string>{"ten", "nine", "letter", "Nine"}));
    List().EndChoice();
}

TEST_F(EnumWidget, LooksEnabledAlsoWhenItIsReadOnlyOrFocused)
{
    const QImage before = images::Render(m_choice);
    m_element.SetReadOnly(true);
    images::ExpectSame(images::Render(m_choice), before);
    m_choice.setFocusPolicy(Qt::StrongFocus);
    m_choice.show();
    m_choice.activateWindow();
    m_choice.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_choice));
    images::ExpectSame(images::Render(m_choice), before);
}

TEST_F(EnumWidget, TakesItsColoursFromTheGroupOfItsState)
{
    const QImage light = images::Render(m_choice);
    m_choice.setPalette(DarkPalette());
    images::ExpectSame(images::Render(m_choice), Expected(QStringLiteral("nine")));
    EXPECT_GT(images::CountDifferent(images::Render(m_choice), light), 0);
    m_choice.setEnabled(false);
    images::ExpectSame(images::Render(m_choice), Expected(QStringLiteral("nine")));
}

TEST_F(EnumWidget, FollowsItsFont)
{
    for (const int size : {12, 9, 17})
    {
        QFont font = m_choice.font();
        font.setPixelSize(size);
        font.setItalic(size == 9);
        m_choice.setFont(font);
        images::ExpectSame(images::Render(m_choice), Expected(QStringLiteral("nine")));
    }
}

TEST_F(EnumWidget, ReadsValueAndLabelInTheChosenEncoding)
{
    m_element.AddEnum("\xE4", "\xF6");
    Load("\xE4");
    const QImage latin1 = images::Render(m_choice);
    images::ExpectSame(latin1, Expected(QString(QChar(0xF6))));
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    m_element.AddEnum("\xC3\xA4", "\xC3\xB6");
    Load("\xC3\xA4");
    images::ExpectSame(images::Render(m_choice), latin1);
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
}

TEST_P(EnumWidgetSorting, OrdersTheListFromTheNextDropDownOn)
{
    DropDown();
    m_choice.SetEnumSortingMethod(GetParam().m_iMethod);
    EXPECT_EQ(OfferedLabels(), (std::vector<std::string>{"ten", "nine", "letter"}));
    List().EndChoice();
    DropDown();
    EXPECT_EQ(OfferedLabels(), GetParam().m_vLabels);
    EXPECT_EQ(List().currentItem()->text(), QStringLiteral("nine"));
    List().EndChoice();
}

INSTANTIATE_TEST_SUITE_P(Methods, EnumWidgetSorting, testing::ValuesIn(g_sortings), sRowName());

TEST_F(EnumWidget, DropsItsListDownOverItself)
{
    m_choice.setGeometry(50, 60, 140, 20);
    m_choice.show();
    DropDown();
    EXPECT_EQ(List().geometry().topLeft(), m_choice.mapToGlobal(QPoint(0, 20)));
    EXPECT_EQ(List().width(), 140);
    EXPECT_EQ(List().currentRow(), 1);
    EXPECT_EQ(List().item(1)->data(Qt::UserRole).toString(), QStringLiteral("9"));
    List().EndChoice();
}

TEST_F(EnumWidget, TakesTheEntryThatIsClicked)
{
    DropDown();
    ClickEntry(2);
    EXPECT_EQ(m_element.GetStrCurrentValue(), "a");
    EXPECT_EQ(m_log.Take(), (CCalls{"choice.FinishValueEdit(a, 4)", "element.OnCtrlValueChange()",
                                    "element.InternalValueChanged()", "element.OnEndEditing(4)"}));
    EXPECT_TRUE(List().isHidden());
}

TEST_F(EnumWidget, ReportsItsOldValueForAnyKey)
{
    for (const auto& [key, cause] : {std::pair(Qt::Key_Down, "4"), std::pair(Qt::Key_Return, "4"),
                                     std::pair(Qt::Key_Tab, "4"), std::pair(Qt::Key_Escape, "0")})
    {
        DropDown();
        QTest::keyClick(&List(), key);
        EXPECT_EQ(m_log.Take(), (CCalls{std::string("choice.FinishValueEdit(9, ") + cause + ")",
                                        "element.OnCtrlValueChange()",
                                        std::string("element.OnEndEditing(") + cause + ")"}));
    }
}

TEST_F(EnumWidget, DropsDownForTheLeftButtonOnly)
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::BackButton})
    {
        DropDown(button);
        EXPECT_TRUE(List().isHidden()) << button;
    }
}

TEST_F(EnumWidget, DropsDownForAReadOnlyElementWhichTakesNothing)
{
    m_element.SetReadOnly(true);
    DropDown();
    EXPECT_TRUE(List().isVisible());
    ClickEntry(2);
    EXPECT_EQ(m_element.GetStrCurrentValue(), "9");
    EXPECT_EQ(m_log.Take(), (CCalls{"choice.FinishValueEdit(a, 4)", "element.OnCtrlValueChange()",
                                    "element.OnEndEditing(4)"}));
}

TEST_F(EnumWidget, DoesNotDropDownWithoutADefinitionOrAnEnumElement)
{
    m_element.SetExternalEnum(nullptr);
    DropDown();
    EXPECT_TRUE(List().isHidden());
    CSimpleDataElement text;
    m_choice.SetDataElement(&text);
    DropDown();
    EXPECT_TRUE(List().isHidden());
    m_choice.SetDataElement(nullptr);
    DropDown();
    EXPECT_TRUE(List().isHidden());
}

TEST_F(EnumWidget, LeavesTheListOfAnotherWidgetOpenWhenItHasNothingToOffer)
{
    DropDown();
    CChoice other;
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    other.mousePressEvent(&press);
    EXPECT_TRUE(List().isVisible());
    EXPECT_EQ(m_log.GetCalls(), CCalls());
    List().EndChoice();
}

TEST_F(EnumWidget, DropsAnEmptyDefinitionDownAsAnEmptyList)
{
    m_element.CreateEnum();
    DropDown();
    EXPECT_TRUE(List().isVisible());
    EXPECT_EQ(List().count(), 0);
    EXPECT_EQ(List().height(), 20);
    List().EndChoice();
    EXPECT_EQ(m_element.GetStrCurrentValue(), "9");
}

TEST_F(EnumWidget, EndsItsOwnOpenChoiceWhenItDropsDownAgain)
{
    DropDown();
    DropDown();
    EXPECT_EQ(m_log.Take(), (CCalls{"choice.FinishValueEdit(9, 4)", "element.OnCtrlValueChange()",
                                    "element.OnEndEditing(4)"}));
    EXPECT_TRUE(List().isVisible());
    List().EndChoice();
}

TEST_F(EnumWidget, EndsTheChoiceOfAnotherWidgetFirst)
{
    TLoggingElement<CEnumDataElement> element{m_log, "second"};
    TLoggingField<CChoice> choice{m_log, "secondChoice"};
    Bind(element, choice);
    element.m_fnOnEndEditing = [] {};
    element.SetExternalEnum(m_element.GetDefinition());
    choice.resize(100, 20);
    DropDown();
    m_log.Clear();
    QTest::mouseClick(&choice, Qt::LeftButton);
    EXPECT_EQ(m_log.Take(), (CCalls{"choice.FinishValueEdit(9, 4)", "element.OnCtrlValueChange()",
                                    "element.OnEndEditing(4)"}));
    ClickEntry(0);
    EXPECT_EQ(element.GetStrCurrentValue(), "10");
    EXPECT_EQ(m_element.GetStrCurrentValue(), "9");
}

TEST_F(EnumWidget, OffersAHundredThousandEntries)
{
    m_element.CreateEnum();
    for (int i = 0; i < 100000; ++i)
        m_element.AddEnum(std::to_string(i).c_str(), ("label " + std::to_string(i)).c_str());
    Load("99999");
    m_choice.SetEnumSortingMethod(3);
    DropDown();
    EXPECT_EQ(List().count(), 100000);
    EXPECT_EQ(List().currentRow(), 99999);
    List().EndChoice();
}

TEST(SharedDropDownList, LivesAsLongAsThereAreChoices)
{
    EXPECT_FALSE(CQTEnumDataWidget::g_pInPlaceList);
    auto first = std::make_unique<CQTEnumDataWidget>();
    const QPointer<QWidget> list = CQTEnumDataWidget::g_pInPlaceList.get();
    ASSERT_TRUE(list);
    EXPECT_EQ(CQTEnumDataWidget::g_pInPlaceList.use_count(), 2);
    auto second = std::make_unique<CQTEnumDataWidget>();
    EXPECT_EQ(CQTEnumDataWidget::g_pInPlaceList.use_count(), 3);
    EXPECT_EQ(CQTEnumDataWidget::g_pInPlaceList.get(), list.data());
    first.reset();
    EXPECT_EQ(CQTEnumDataWidget::g_pInPlaceList.use_count(), 2);
    EXPECT_TRUE(list);
    second.reset();
    EXPECT_FALSE(CQTEnumDataWidget::g_pInPlaceList);
    EXPECT_FALSE(list);
    const CQTEnumDataWidget fresh;
    EXPECT_EQ(CQTEnumDataWidget::g_pInPlaceList.use_count(), 2);
}

TEST(SharedDropDownList, LivesWithAWidgetThatOutlivesTheStatic)
{
    auto widget = std::make_unique<CQTEnumDataWidget>();
    const QPointer<QWidget> list = CQTEnumDataWidget::g_pInPlaceList.get();
    CQTEnumDataWidget::g_pInPlaceList.reset();
    EXPECT_TRUE(list);
    widget.reset();
    EXPECT_FALSE(list);
}

TEST(SharedDropDownList, IsLeftToOthersByADyingWidgetAfterAReportOfTheOpenChoice)
{
    CCallLog log;
    TLoggingElement<CEnumDataElement> element{log, "element"};
    element.m_fnOnEndEditing = [] {};
    element.CreateEnum();
    const CQTEnumDataWidget other;
    auto choice = std::make_unique<CQTEnumDataWidget>();
    Bind(element, *choice);
    choice->resize(100, 20);
    QTest::mouseClick(choice.get(), Qt::LeftButton);
    EXPECT_TRUE(CQTEnumDataWidget::g_pInPlaceList->isVisible());
    log.Clear();
    choice.reset();
    EXPECT_EQ(log.Take(), (CCalls{"element.OnCtrlValueChange()", "element.OnEndEditing(4)"}));
    EXPECT_TRUE(CQTEnumDataWidget::g_pInPlaceList->isHidden());
}
