#include "canvasfixture.h"

#include <canvas/striplayer.h>

#include <QLineEdit>

namespace
{

class CStripTest : public CCanvasFixture
{
protected:
    CStripTest()
        : m_strips(m_view,
                   [this](int, QWidget* parent)
                   {
                       ++m_iMade;
                       return new QWidget(parent);
                   })
    {
        m_iFirst = Add("gegl:perlin-noise", {100, 100});
        m_iSecond = Add("gegl:crop", {100, 300});
    }
    QPoint Nowhere() const { return {850, 20}; }
    bool IsShown(int node) const
    {
        const QWidget* strip = m_strips.FindStrip(node);
        return strip && strip->isVisible();
    }
    bool WaitUntilGone(int node)
    {
        return QTest::qWaitFor([&] { return !m_strips.FindStrip(node); }, 5000);
    }

    CStripLayer m_strips;
    int m_iFirst = 0;
    int m_iSecond = 0;
    int m_iMade = 0;
};

} // namespace

TEST_F(CStripTest, AreThereOnlyForTheNodeUnderTheMouse)
{
    EXPECT_FALSE(m_strips.FindStrip(m_iFirst));
    MoveTo(Title(m_iFirst));
    EXPECT_TRUE(IsShown(m_iFirst));
    EXPECT_FALSE(m_strips.FindStrip(m_iSecond));
    MoveTo(Title(m_iSecond));
    EXPECT_TRUE(IsShown(m_iSecond));
    EXPECT_FALSE(m_strips.FindStrip(m_iFirst));
    MoveTo(Nowhere());
    EXPECT_TRUE(IsShown(m_iSecond)) << "the mouse may come back";
    EXPECT_TRUE(WaitUntilGone(m_iSecond));
}

TEST_F(CStripTest, StayWhileTheMouseIsOverThem)
{
    MoveTo(Title(m_iFirst));
    const QPoint strip = m_strips.FindStrip(m_iFirst)->geometry().center();
    MoveTo(strip);
    QTest::qWait(2 * CStripLayer::g_iLeaveTime);
    EXPECT_TRUE(IsShown(m_iFirst));
    EXPECT_EQ(m_iMade, 1);
}

TEST_F(CStripTest, LieWithinTheirNodesWhereverTheseAre)
{
    m_document.Pin({m_iFirst}, true);
    const auto expectInside = [&]
    {
        const QRect frame = m_view.mapFromScene(Node(m_iFirst).GetFrame()).boundingRect();
        EXPECT_TRUE(frame.contains(m_strips.FindStrip(m_iFirst)->geometry()));
        EXPECT_GT(m_strips.FindStrip(m_iFirst)->width(), frame.width() * 9 / 10);
    };
    expectInside();
    m_document.Move({{m_iFirst, QPointF(300, 170)}});
    expectInside();
    m_view.Zoom(1.5, QPoint(100, 100));
    expectInside();
    Press({10, 10}, Qt::MiddleButton);
    MoveTo({60, 60});
    Release({60, 60});
    expectInside();
    Drag(Title(m_iFirst), Title(m_iFirst) + QPoint(40, 40));
    expectInside();
}

TEST_F(CStripTest, OfPinnedNodesAndOfMessagesStay)
{
    m_document.Pin({m_iFirst}, true);
    m_scene.SetState(m_iSecond, {eNodeError, QStringLiteral("The file is missing")});
    EXPECT_TRUE(IsShown(m_iFirst));
    EXPECT_TRUE(IsShown(m_iSecond));
    m_document.Pin({m_iFirst}, false);
    m_scene.SetState(m_iSecond, {});
    EXPECT_FALSE(m_strips.FindStrip(m_iFirst));
    EXPECT_FALSE(m_strips.FindStrip(m_iSecond));
}

TEST_F(CStripTest, GoWithTheirNodesAndComeBackWithThem)
{
    m_document.Pin({m_iFirst}, true);
    const QPointer<QWidget> strip = m_strips.FindStrip(m_iFirst);
    m_document.RemoveNodes({m_iFirst});
    EXPECT_FALSE(m_strips.FindStrip(m_iFirst));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(strip);
    Undo().undo();
    EXPECT_TRUE(IsShown(m_iFirst));
}

TEST_F(CStripTest, GiveWayInASmallPictureOfTheGraphButForTheOneUnderTheMouse)
{
    m_document.Pin({m_iFirst}, true);
    m_view.Zoom(0.5, QPoint(100, 100));
    EXPECT_FALSE(IsShown(m_iFirst));
    MoveTo(Title(m_iFirst));
    EXPECT_TRUE(IsShown(m_iFirst));
    const QRect strip = m_strips.FindStrip(m_iFirst)->geometry();
    const QRect frame = m_view.mapFromScene(Node(m_iFirst).GetFrame()).boundingRect();
    EXPECT_GT(strip.width(), frame.width());
    EXPECT_GT(strip.top(), frame.bottom());
}

TEST_F(CStripTest, StayWhileAValueIsBeingEdited)
{
    MoveTo(Title(m_iFirst));
    QLineEdit editor(nullptr);
    editor.setWindowFlags(Qt::ToolTip);
    editor.show();
    editor.activateWindow();
    editor.setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return editor.hasFocus(); }, 5000));
    MoveTo(Nowhere());
    QTest::qWait(2 * CStripLayer::g_iLeaveTime);
    EXPECT_TRUE(IsShown(m_iFirst));
    editor.close();
    EXPECT_TRUE(WaitUntilGone(m_iFirst));
}
