#include <inspector/qt/inplacelist.h>

#include <qttextencoding.h>

#include <qt/recordingsink.h>
#include <support/calls.h>
#include <support/rowname.h>

#include <QGuiApplication>
#include <QMetaMethod>
#include <QPointer>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace
{

class DropDownList : public testing::Test
{
protected:
    void SetUp() override
    {
        m_owner.setGeometry(30, 40, 150, 20);
        m_owner.show();
        m_list->SetSink(&m_sink);
    }

    ~DropDownList() override
    {
        m_sink.m_fnFinishValueEdit = nullptr;
        m_list->Reset();
    }

    void Fill(int entries, int rowHeight = 0)
    {
        m_list->Reset();
        for (int i = 0; i < entries; ++i)
        {
            m_list->AddEntry(("v" + std::to_string(i)).c_str(),
                             ("label " + std::to_string(i)).c_str());
            if (rowHeight > 0)
                m_list->item(i)->setSizeHint(QSize(10, rowHeight));
        }
    }

    void Open(const char* value = "v1")
    {
        Fill(3);
        m_list->Start(m_owner, m_owner.rect(), value);
    }

    void Click(int row, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(m_list->viewport(), button, Qt::KeyboardModifiers(),
                          m_list->visualItemRect(m_list->item(row)).center());
    }

    /// The signal of a click, as it may arrive at any time and with any item.
    void SignalClick(QListWidgetItem* item) { Q_EMIT m_list->itemClicked(item); }

    CCallLog m_log;
    CRecordingSink m_sink{m_log, "sink"};
    CRecordingSink m_other{m_log, "other"};
    QWidget m_owner;
    std::shared_ptr<CInPlaceList> m_list = CInPlaceList::Create();
};

struct sHeight
{
    const char* m_szName;
    int m_iEntries;
    int m_iRowHeight;
    int m_iFieldHeight;
    int m_iExpected;
};

const sHeight g_heights[] = {
    {"TwentyEntriesOfEighteen", 20, 18, 20, 276}, {"FifteenEntries", 15, 18, 20, 276},
    {"SixteenEntries", 16, 18, 20, 276},          {"FourteenEntries", 14, 18, 20, 258},
    {"OneEntryOfEighteen", 1, 18, 20, 20},        {"OneEntryOfTheFieldsHeight", 1, 20, 20, 20},
    {"OneEntryOfOneMore", 1, 21, 20, 27},         {"NoEntry", 0, 18, 20, 20},
    {"TwoEntriesInAHighField", 2, 18, 60, 60},
};

class DropDownListHeight : public DropDownList, public testing::WithParamInterface<sHeight>
{
};

} // namespace

TEST_F(DropDownList, IsAListWidgetWithOnePrivateSlot)
{
    const QMetaObject& meta = CInPlaceList::staticMetaObject;
    EXPECT_STREQ(meta.className(), "CInPlaceList");
    EXPECT_STREQ(meta.superClass()->className(), "QListWidget");
    ASSERT_EQ(meta.methodCount(), meta.methodOffset() + 1);
    const QMetaMethod slot = meta.method(meta.methodOffset());
    EXPECT_EQ(slot.methodSignature(), "OnItemClicked(QListWidgetItem*)");
    EXPECT_EQ(slot.methodType(), QMetaMethod::Slot);
    EXPECT_EQ(slot.access(), QMetaMethod::Private);
}

TEST_F(DropDownList, StartsHiddenEmptyAndWithoutParent)
{
    EXPECT_EQ(m_list->parent(), nullptr);
    EXPECT_TRUE(m_list->isHidden());
    EXPECT_EQ(m_list->count(), 0);
    EXPECT_EQ(m_list->selectionMode(), QAbstractItemView::SingleSelection);
}

TEST_F(DropDownList, HoldsLabelsWithTheirValues)
{
    m_list->AddEntry("10", "ten");
    m_list->AddEntry("", "");
    ASSERT_EQ(m_list->count(), 2);
    const QListWidgetItem& item = *m_list->item(0);
    EXPECT_EQ(item.text(), QStringLiteral("ten"));
    EXPECT_EQ(item.data(Qt::UserRole), QVariant(QStringLiteral("10")));
    EXPECT_EQ(item.background(), QBrush(m_list->palette().color(QPalette::Base)));
    EXPECT_EQ(item.background().style(), Qt::SolidPattern);
    EXPECT_EQ(m_list->item(1)->text(), QString());
}

TEST_F(DropDownList, IgnoresAnEntryWithoutAText)
{
    m_list->AddEntry(nullptr, "ten");
    m_list->AddEntry("10", nullptr);
    m_list->AddEntry(nullptr, nullptr);
    EXPECT_EQ(m_list->count(), 0);
}

TEST_F(DropDownList, IsAFocusedToolTipWindowBelowTheField)
{
    Open();
    const QRect field(m_owner.mapToGlobal(QPoint(0, 0)), m_owner.size());
    EXPECT_EQ(m_list->geometry().topLeft(), QPoint(field.left(), field.bottom() + 1));
    EXPECT_EQ(m_list->width(), 150);
    EXPECT_EQ(m_list->windowType(), Qt::ToolTip);
    EXPECT_TRUE(m_list->isVisible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(m_list.get()));
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_list->hasFocus(); }));
    m_list->EndChoice();
}

TEST_P(DropDownListHeight, FollowsItsFirstFifteenRows)
{
    const sHeight& height = GetParam();
    m_owner.resize(150, height.m_iFieldHeight);
    Fill(height.m_iEntries, height.m_iRowHeight);
    m_list->Start(m_owner, m_owner.rect(), "");
    EXPECT_EQ(m_list->height(), height.m_iExpected);
    m_list->EndChoice();
}

INSTANTIATE_TEST_SUITE_P(Lists, DropDownListHeight, testing::ValuesIn(g_heights), sRowName());

TEST_F(DropDownList, IsAtLeastAHundredPixelsWide)
{
    m_owner.resize(60, 20);
    Fill(1, 18);
    m_list->Start(m_owner, QRect(0, 0, 60, 20), "");
    EXPECT_EQ(m_list->width(), 100);
    m_list->EndChoice();
}

TEST_F(DropDownList, StaysOnTheDesktop)
{
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    m_owner.move(desktop.right() - 40, desktop.bottom() - 30);
    Fill(20, 18);
    m_list->Start(m_owner, QRect(0, 0, 60, 20), "");
    // The bounds lie one pixel past the last row and column.
    EXPECT_EQ(m_list->geometry(), QRect(QPoint(desktop.left() + desktop.width() - 99,
                                               desktop.top() + desktop.height() - 275),
                                        QSize(100, 276)));
    m_list->EndChoice();
}

TEST_F(DropDownList, ShowsTheGivenValueAsTheChosenRow)
{
    Open("v2");
    EXPECT_EQ(m_list->currentRow(), 2);
    ASSERT_EQ(m_list->selectedItems().size(), 1);
    EXPECT_EQ(m_list->selectedItems().front(), m_list->item(2));
    m_list->EndChoice();
}

TEST_F(DropDownList, ShowsTheFirstOfTwoRowsOfTheSameValue)
{
    m_list->Reset();
    m_list->AddEntry("x", "one");
    m_list->AddEntry("y", "two");
    m_list->AddEntry("y", "three");
    m_list->Start(m_owner, m_owner.rect(), "y");
    EXPECT_EQ(m_list->currentRow(), 1);
    m_list->EndChoice();
}

TEST_F(DropDownList, HasNoCurrentRowForAnUnknownValue)
{
    for (const char* value : {"unknown", "", "label 1", "V1", "v"})
    {
        // The keyboard is the host's again before each choice.
        m_owner.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_owner));
        Open(value);
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_list->hasFocus(); }));
        EXPECT_EQ(m_list->currentRow(), -1) << value;
        EXPECT_TRUE(m_list->selectedItems().isEmpty()) << value;
        m_list->EndChoice();
        EXPECT_EQ(m_sink.m_sValue, value);
    }
}

TEST_F(DropDownList, ReportsBeforeItIsHidden)
{
    bool wasVisible = false;
    m_sink.m_fnFinishValueEdit = [&] { wasVisible = m_list->isVisible(); };
    Open();
    m_list->EndChoice();
    EXPECT_TRUE(wasVisible);
    EXPECT_TRUE(m_list->isHidden());
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v1, 4)"});
}

TEST_F(DropDownList, ReportsNothingWhileItIsClosed)
{
    m_list->EndChoice();
    Open();
    m_list->EndChoice();
    m_log.Clear();
    m_list->EndChoice();
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(DropDownList, ReportsAClickedEntryAsItsChoice)
{
    Open();
    Click(2);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v2, 4)"});
    EXPECT_TRUE(m_list->isHidden());
}

TEST_F(DropDownList, ReportsTheChosenEntryWhenItIsClickedToo)
{
    Open();
    Click(1);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v1, 4)"});
}

TEST_F(DropDownList, LeavesTheOtherMouseButtonsToItself)
{
    Open();
    Click(2, Qt::RightButton);
    EXPECT_EQ(m_log.GetCalls(), CCalls());
    EXPECT_TRUE(m_list->isVisible());
    m_list->EndChoice();
}

TEST_F(DropDownList, ReportsAClickThatArrivesAfterItHasClosed)
{
    Open();
    m_list->EndChoice();
    m_log.Clear();
    SignalClick(m_list->item(2));
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v2, 4)"});
    EXPECT_TRUE(m_list->isHidden());
    SignalClick(m_list->item(0));
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v0, 4)"});
}

TEST_F(DropDownList, ReadsAnythingThatCanBeAText)
{
    const std::pair<QVariant, const char*> cases[] = {
        {QVariant(QStringLiteral("text")), "text"},
        {QVariant(5), "5"},
        {QVariant(true), "true"},
        {QVariant(), ""},
        {QVariant(QString()), ""},
        {QVariant(QVariantMap()), ""},
        {QVariant(QSize(1, 2)), ""},
    };
    for (const auto& [data, expected] : cases)
    {
        Open();
        m_list->item(2)->setData(Qt::UserRole, data);
        Click(2);
        EXPECT_EQ(m_log.Take(), CCalls{std::string("sink.FinishValueEdit(") + expected + ", 4)"});
    }
}

TEST_F(DropDownList, ReportsTheEmptyValueForAClickOnNothing)
{
    Open();
    SignalClick(nullptr);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(, 4)"});
    EXPECT_TRUE(m_list->isHidden());
}

TEST_F(DropDownList, IsCancelledByAnyKey)
{
    const auto modifiers = {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier),
                            Qt::ControlModifier | Qt::AltModifier};
    for (const Qt::Key key :
         {Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Return,
          Qt::Key_Enter, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Space, Qt::Key_A, Qt::Key_Delete,
          Qt::Key_F1, Qt::Key_Shift, Qt::Key_Escape})
    {
        for (const Qt::KeyboardModifiers modifier : modifiers)
        {
            Open();
            m_list->setCurrentRow(0);
            QKeyEvent press(QEvent::KeyPress, key, modifier);
            EXPECT_TRUE(QCoreApplication::sendEvent(m_list.get(), &press));
            const char* cause = key == Qt::Key_Escape ? "0" : "4";
            EXPECT_EQ(m_log.Take(), CCalls{std::string("sink.FinishValueEdit(v1, ") + cause + ")"})
                << key;
            EXPECT_TRUE(m_list->isHidden());
            EXPECT_EQ(m_list->currentRow(), 0);
        }
    }
}

TEST_F(DropDownList, ForgetsTheCauseOfTheLastEnd)
{
    Open();
    QTest::keyClick(m_list.get(), Qt::Key_Escape);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v1, 0)"});
    Open();
    m_list->EndChoice();
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v1, 4)"});
}

TEST_F(DropDownList, IsCancelledByADeactivation)
{
    Open();
    QEvent deactivation(QEvent::WindowDeactivate);
    EXPECT_TRUE(QCoreApplication::sendEvent(m_list.get(), &deactivation));
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v1, 4)"});
    EXPECT_TRUE(m_list->isHidden());
}

TEST_F(DropDownList, GoesBackToTheStartValueWhateverWasCurrent)
{
    Open();
    m_list->setCurrentRow(2);
    m_list->setCurrentRow(0);
    QTest::keyClick(m_list.get(), Qt::Key_Return);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v1, 4)"});
}

TEST_F(DropDownList, EndsAnOpenChoiceForAnotherSink)
{
    Open();
    m_list->SetSink(&m_other);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v1, 4)"});
    EXPECT_TRUE(m_list->isHidden());
    Open("v0");
    m_list->EndChoice();
    EXPECT_EQ(m_log.Take(), CCalls{"other.FinishValueEdit(v0, 4)"});
}

TEST_F(DropDownList, EndsAnOpenChoiceForAnotherStart)
{
    Open();
    m_list->Start(m_owner, m_owner.rect(), "v2");
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v1, 4)"});
    EXPECT_TRUE(m_list->isVisible());
    m_list->EndChoice();
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v2, 4)"});
}

TEST_F(DropDownList, TellsNobodyWithoutASink)
{
    m_list->SetSink(nullptr);
    Open();
    Click(2);
    EXPECT_TRUE(m_list->isHidden());
    EXPECT_EQ(m_log.GetCalls(), CCalls());
}

TEST_F(DropDownList, IsResetWithoutAReport)
{
    Open();
    m_list->Reset();
    EXPECT_EQ(m_list->count(), 0);
    m_list->EndChoice();
    EXPECT_EQ(m_log.GetCalls(), CCalls());
    SignalClick(nullptr);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(, 4)"});
}

TEST_F(DropDownList, ReportsAnEndOnceWhateverItsSinkDoesMeanwhile)
{
    const CHook meanwhile[] = {
        [this] { m_list->EndChoice(); },
        [this] { m_list->SetSink(&m_other); },
        [this] { QTest::keyClick(m_list.get(), Qt::Key_Escape); },
        [this] { SignalClick(m_list->item(2)); },
        [this]
        {
            QEvent deactivation(QEvent::WindowDeactivate);
            QCoreApplication::sendEvent(m_list.get(), &deactivation);
        },
    };
    for (const CHook& hook : meanwhile)
    {
        m_sink.m_fnFinishValueEdit = hook;
        m_list->SetSink(&m_sink);
        Open();
        Click(0);
        EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v0, 4)"});
        EXPECT_TRUE(m_list->isHidden());
    }
}

TEST_F(DropDownList, StaysOpenWhenItsSinkOpensItAgain)
{
    m_sink.m_fnFinishValueEdit = [this]
    {
        m_sink.m_fnFinishValueEdit = nullptr;
        Open("v2");
    };
    Open();
    Click(0);
    EXPECT_TRUE(m_list->isVisible());
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v0, 4)"});
    m_list->EndChoice();
    EXPECT_TRUE(m_list->isHidden());
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v2, 4)"});
}

TEST_F(DropDownList, KeepsKeysFromShortcuts)
{
    Open();
    for (const int key :
         {int(Qt::Key_A), int(Qt::Key_Delete), int(Qt::Key_F5), int(Qt::Key_Escape)})
    {
        QKeyEvent event(QEvent::ShortcutOverride, key, Qt::ControlModifier);
        event.ignore();
        QCoreApplication::sendEvent(m_list.get(), &event);
        EXPECT_TRUE(event.isAccepted()) << key;
    }
    EXPECT_TRUE(m_list->isVisible());
    m_list->EndChoice();
}

TEST_F(DropDownList, OffersAHundredThousandEntries)
{
    Fill(100000);
    m_list->Start(m_owner, m_owner.rect(), "v99999");
    EXPECT_EQ(m_list->currentRow(), 99999);
    Click(99999);
    EXPECT_EQ(m_log.Take(), CCalls{"sink.FinishValueEdit(v99999, 4)"});
}

TEST_F(DropDownList, KeepsValuesByteForByte)
{
    std::string latin1;
    for (int byte = 1; byte < 256; ++byte)
        latin1 += static_cast<char>(byte);
    m_list->AddEntry(latin1.c_str(), "every byte");
    m_list->Start(m_owner, m_owner.rect(), "");
    Click(0);
    EXPECT_EQ(m_sink.m_sValue, latin1);
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    const std::string utf8 = "\xEF\xBB\xBF\xE2\x82\xAC\xEF\xBF\xBE";
    m_list->Reset();
    m_list->AddEntry(utf8.c_str(), utf8.c_str());
    m_list->Start(m_owner, m_owner.rect(), utf8.c_str());
    EXPECT_EQ(m_list->currentRow(), 0);
    Click(0);
    EXPECT_EQ(m_sink.m_sValue, utf8);
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
}

TEST(DropDownListDisposal, HappensWithTheLastPointer)
{
    std::shared_ptr<CInPlaceList> list = CInPlaceList::Create();
    const QPointer<QWidget> alive = list.get();
    std::shared_ptr<CInPlaceList> second = list;
    list.reset();
    EXPECT_TRUE(alive);
    second.reset();
    EXPECT_FALSE(alive);
}

TEST(DropDownListDisposal, ReportsNothing)
{
    CCallLog log;
    CRecordingSink sink(log, "sink");
    QWidget owner;
    std::shared_ptr<CInPlaceList> list = CInPlaceList::Create();
    list->SetSink(&sink);
    list->Start(owner, owner.rect(), "value");
    list.reset();
    EXPECT_EQ(log.GetCalls(), CCalls());
}

TEST(DropDownListDisposal, WaitsForTheEndOfAReport)
{
    CCallLog log;
    CRecordingSink sink(log, "sink");
    QWidget owner;
    std::shared_ptr<CInPlaceList> list = CInPlaceList::Create();
    const QPointer<QWidget> alive = list.get();
    bool wasThere = false;
    sink.m_fnFinishValueEdit = [&]
    {
        list.reset();
        wasThere = !alive.isNull();
    };
    list->SetSink(&sink);
    list->AddEntry("value", "label");
    list->Start(owner, owner.rect(), "value");
    QTest::keyClick(list.get(), Qt::Key_Return);
    EXPECT_TRUE(wasThere);
    EXPECT_TRUE(!alive || alive->isHidden());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(alive);
    EXPECT_EQ(log.Take(), CCalls{"sink.FinishValueEdit(value, 4)"});
}
