#include "panelfixture.h"

#include <inspector/panelwidgets.h>

#include <qtenumdatawidget.h>

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

namespace
{

constexpr auto g_eValidate = CInspectorDataElement::eEndEditValidate;

/// Three nodes of one operation, of which the first differs.
class CSeveral : public CPanelFixture
{
protected:
    void ShowThree(const char* operation)
    {
        m_document.Clear();
        m_vNodes.clear();
        for (int i = 0; i < 3; ++i)
            m_vNodes.push_back(m_document.AddNode(operation, QPointF()));
        m_iNode = m_vNodes[0];
    }

    void SetFirst(const char* property, const char* text)
    {
        m_document.SetText({m_iNode}, *Info().FindProperty(property), text);
    }

    /// The values of all nodes, "a b c".
    std::string Values(const char* property)
    {
        std::string text;
        for (const int node : m_vNodes)
            text +=
                (text.empty() ? "" : " ") + Operation(node).GetText(*Info().FindProperty(property));
        return text;
    }

    template <class TWidget>
    std::string Shown(const char* property, int which = 0)
    {
        std::string text;
        Controls<TWidget>(property).at(which)->GetDataAsString(text);
        return text;
    }

    QStringList Headings()
    {
        QStringList texts;
        for (const QLabel* label : m_pPanel->findChildren<QLabel*>())
            texts += label->text();
        return texts;
    }

    std::vector<int> m_vNodes;
};

} // namespace

TEST_F(CSeveral, ShowWhatTheyHaveInCommonAndWhereTheyDiffer)
{
    ShowThree("gegl:gaussian-blur");
    SetFirst("std-dev-x", "9");
    SetFirst("filter", "iir");
    m_pPanel->ShowNodes(m_vNodes);
    EXPECT_TRUE(Headings().contains(QStringLiteral("3 \u00d7 Gaussian Blur")));
    EXPECT_EQ(Shown<CQTSimpleDataWidget>("std-dev-x"), "(several)");
    EXPECT_EQ(Shown<CQTSimpleDataWidget>("std-dev-y"), "1.5");
    EXPECT_EQ(Shown<CQTEnumDataWidget>("filter"), "(several)");
    EXPECT_EQ(Shown<CQTEnumDataWidget>("abyss-policy"), "clamp");
}

TEST_F(CSeveral, TakeAValueInOneStep)
{
    ShowThree("gegl:gaussian-blur");
    SetFirst("std-dev-x", "9");
    SetFirst("filter", "iir");
    m_pPanel->ShowNodes(m_vNodes);
    const int steps = m_document.GetUndoStack().count();
    Controls<CFieldWidget>("std-dev-x").at(0)->FinishValueEdit("4", g_eValidate);
    Controls<CQTEnumDataWidget>("filter").at(0)->FinishValueEdit("fir", g_eValidate);
    Deliver();
    EXPECT_EQ(Values("std-dev-x"), "4 4 4");
    EXPECT_EQ(Values("filter"), "fir fir fir");
    EXPECT_EQ(Shown<CQTSimpleDataWidget>("std-dev-x"), "4");
    EXPECT_EQ(m_document.GetUndoStack().count(), steps + 2);
    m_document.GetUndoStack().undo();
    m_document.GetUndoStack().undo();
    Deliver();
    EXPECT_EQ(Values("std-dev-x"), "9 1.5 1.5");
    EXPECT_EQ(Shown<CQTSimpleDataWidget>("std-dev-x"), "(several)");
    EXPECT_EQ(Shown<CQTEnumDataWidget>("filter"), "(several)");
}

TEST_F(CSeveral, KeepTheirValuesWhenAFieldIsOnlyLookedAt)
{
    ShowThree("gegl:text");
    SetFirst("font", "Serif");
    m_pPanel->ShowNodes(m_vNodes);
    const std::string before = Values("font");
    const int steps = m_document.GetUndoStack().count();
    m_pPanel->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_pPanel.get()));
    QTest::mouseClick(Controls<CFieldWidget>("font").at(0), Qt::LeftButton);
    ASSERT_TRUE(Editor());
    QTest::keyClick(Editor(), Qt::Key_Return);
    EXPECT_EQ(Values("font"), before);
    EXPECT_EQ(m_document.GetUndoStack().count(), steps);
}

TEST_F(CSeveral, SayWhatBecameOfAValueForAll)
{
    ShowThree("gegl:gaussian-blur");
    m_pPanel->ShowNodes(m_vNodes);
    const QSignalSpy messages(m_pPanel.get(), &CInspectorPanel::Message);
    Controls<CFieldWidget>("std-dev-x").at(0)->FinishValueEdit("-3", g_eValidate);
    EXPECT_EQ(Values("std-dev-x"), "0 0 0");
    ASSERT_FALSE(messages.isEmpty());
    EXPECT_EQ(messages.last().at(0).toString(),
              QStringLiteral("Size X: -3 is below 0, which was taken instead."));
}

TEST_F(CSeveral, MarkAYesOrNoThatDiffersAndAgreeAfterAClick)
{
    ShowThree("gegl:gaussian-blur");
    m_pPanel->ShowNodes(m_vNodes);
    auto* box = Controls<CMixedBoolWidget>("clip-extent").at(0);
    const QImage yes = box->grab().toImage();
    SetFirst("clip-extent", "false");
    Deliver();
    const QImage mixed = box->grab().toImage();
    m_document.SetText(m_vNodes, *Info().FindProperty("clip-extent"), "false");
    Deliver();
    const QImage no = box->grab().toImage();
    EXPECT_NE(mixed, yes);
    EXPECT_NE(mixed, no);
    SetFirst("clip-extent", "true");
    Deliver();
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    Deliver();
    EXPECT_EQ(Values("clip-extent"), "true true true");
    EXPECT_EQ(box->grab().toImage(), yes);
}

TEST_F(CSeveral, ShowTheirColoursSideBySide)
{
    ShowThree("gegl:color");
    const sImageProperty& value = *Info().FindProperty("value");
    m_document.SetColor(m_vNodes, value, {1, 0, 0, 1});
    m_document.SetColor({m_iNode}, value, {0, 0, 1, 1});
    m_pPanel->ShowNodes(m_vNodes);
    m_pPanel->grab();
    const auto swatches = m_pPanel->findChildren<CSwatchWidget*>();
    ASSERT_EQ(swatches.size(), 1);
    const QImage picture = swatches[0]->grab().toImage();
    EXPECT_EQ(picture.pixelColor(4, 10), QColor(0, 0, 255));
    EXPECT_EQ(picture.pixelColor(15, 10), QColor(255, 0, 0));
    EXPECT_EQ(Shown<CFieldWidget>("value", 0), "(several)");
    EXPECT_EQ(Shown<CFieldWidget>("value", 1), "0");
    Controls<CFieldWidget>("value").at(0)->FinishValueEdit("0.5", g_eValidate);
    Deliver();
    EXPECT_EQ(Operation(m_vNodes[0]).GetComponent(value, 2), "1") << "only one part was set";
    EXPECT_EQ(Operation(m_vNodes[2]).GetComponent(value, 0), "0.5");
}

TEST_F(CSeveral, AreTheOnesThatAreLeftWhenOneIsRemoved)
{
    ShowThree("gegl:gaussian-blur");
    SetFirst("std-dev-x", "9");
    m_pPanel->ShowNodes(m_vNodes);
    m_document.RemoveNodes({m_iNode});
    Deliver();
    EXPECT_EQ(Shown<CQTSimpleDataWidget>("std-dev-x"), "1.5");
}

TEST_F(CSeveral, OfDifferentOperationsHaveAMessage)
{
    ShowThree("gegl:gaussian-blur");
    m_vNodes.push_back(m_document.AddNode("gegl:color", QPointF()));
    m_pPanel->ShowNodes(m_vNodes);
    EXPECT_TRUE(m_pPanel->GetView()->HasPreviewMessage());
    EXPECT_TRUE(Headings().contains(QStringLiteral("4 nodes")));
    EXPECT_TRUE(m_pPanel->findChildren<CFieldWidget*>().isEmpty());
}
