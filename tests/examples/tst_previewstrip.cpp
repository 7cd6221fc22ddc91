#include "panelfixture.h"

#include <inspector/panelwidgets.h>
#include <inspector/previewstrip.h>

#include <qtenumdatawidget.h>

#include <QTest>

namespace
{

constexpr auto g_eValidate = CInspectorDataElement::eEndEditValidate;
constexpr int g_iPatience = 60000;

class CStrip : public CPanelFixture
{
protected:
    void ShowStrip(const char* operation)
    {
        m_iNode = m_document.AddNode(operation, QPointF());
        m_pStrip = std::make_unique<CPreviewStrip>(m_document, m_renderer, m_iNode);
        m_pStrip->resize(400, 24);
        m_pStrip->grab();
    }

    template <class TWidget>
    TWidget& Control(const char* property)
    {
        return *m_pStrip->findChild<TWidget*>(QString::fromUtf8(property));
    }

    bool HasMessage() { return m_pStrip->GetView()->HasPreviewMessage(); }

    void Set(const char* property, const char* text)
    {
        m_document.SetText({m_iNode}, *Info().FindProperty(property), text);
    }

    void Render() { m_renderer.Render(m_document.GetGraph(), m_iNode); }

    CRenderer m_renderer;
    std::unique_ptr<CPreviewStrip> m_pStrip;
};

} // namespace

TEST_F(CStrip, LaysEverythingOutOnOneLine)
{
    ShowStrip("gegl:gaussian-blur");
    EXPECT_FALSE(HasMessage());
    EXPECT_EQ(Control<CFieldWidget>("std-dev-x").y(), 0);
    EXPECT_EQ(Control<CQTEnumDataWidget>("filter").y(), 0);
    EXPECT_EQ(Control<CMixedBoolWidget>("clip-extent").y(), 0);
    EXPECT_GT(Control<CQTEnumDataWidget>("filter").x(), Control<CFieldWidget>("std-dev-x").x());
    EXPECT_EQ(m_pStrip->GetView()->size(), m_pStrip->size());
}

TEST_F(CStrip, EditsTheNodeAndFollowsIt)
{
    ShowStrip("gegl:gaussian-blur");
    Control<CFieldWidget>("std-dev-x").FinishValueEdit("12", g_eValidate);
    EXPECT_EQ(Value("std-dev-x"), "12");
    m_document.GetUndoStack().undo();
    m_pStrip->grab();
    std::string text;
    Control<CFieldWidget>("std-dev-x").GetDataAsString(text);
    EXPECT_EQ(text, "1.5");
}

TEST_F(CStrip, SaysThatThereIsNothingToEdit)
{
    ShowStrip("gegl:invert-linear");
    EXPECT_TRUE(HasMessage());
    EXPECT_EQ(m_pStrip->toolTip(), QStringLiteral("No parameters"));
}

TEST_F(CStrip, ShowsAnErrorUntilItIsGone)
{
    ShowStrip("gegl:load");
    Set("path", "/no/such/picture.png");
    Render();
    EXPECT_TRUE(HasMessage());
    EXPECT_EQ(m_pStrip->toolTip(), QStringLiteral("There is no file /no/such/picture.png"));
    EXPECT_EQ(Control<CFieldWidget>("path").size(), QSize(0, 0)) << "the message has the room";
    const QImage message = m_pStrip->grab().toImage();
    Set("path", "");
    Render();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !m_renderer.IsRendering(); }, g_iPatience));
    EXPECT_FALSE(HasMessage());
    EXPECT_GT(Control<CFieldWidget>("path").width(), 0);
    EXPECT_NE(m_pStrip->grab().toImage(), message);
}

TEST_F(CStrip, SaysThatItIsRenderingOnlyAfterAWhile)
{
    ShowStrip("gegl:cell-noise");
    // Large numbers take their time.
    Set("iterations", "20");
    Set("scale", "0.01");
    Render();
    EXPECT_FALSE(HasMessage());
    ASSERT_TRUE(QTest::qWaitFor([&] { return HasMessage(); }, g_iPatience));
    EXPECT_EQ(m_pStrip->toolTip(), QStringLiteral("Rendering\u2026"));
    EXPECT_TRUE(m_renderer.IsRendering());
    m_renderer.Cancel();
    EXPECT_FALSE(HasMessage());
}

TEST_F(CStrip, OutlivesItsNode)
{
    ShowStrip("gegl:gaussian-blur");
    m_document.RemoveNodes({m_iNode});
    m_pStrip->grab();
    m_renderer.Render(m_document.GetGraph(), 0);
    EXPECT_TRUE(m_pStrip->findChildren<CFieldWidget*>().isEmpty());
}
