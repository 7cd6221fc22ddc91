#include "tour.h"

#include "../canvas/canvasview.h"
#include "../canvas/striplayer.h"
#include "../inspector/inspectorpanel.h"
#include "../ui/mainwindow.h"
#include "../ui/palettepopup.h"
#include "../ui/pictureview.h"
#include "../ui/snapshot.h"

#include <QDir>
#include <QPainter>
#include <QTest>

#include <iostream>

namespace
{

constexpr int g_iPatience = 60000; ///< for a picture, in milliseconds
constexpr int g_iPause = 50;

// Operations of the sample, and the one that is added.
const char* const g_sFilter = "gegl:brightness-contrast";
const char* const g_sShape = "gegl:fill-path";
const char* const g_sEnd = "gegl:sepia";
const char* const g_sAdded = "gegl:vignette";

} // namespace

CTour::CTour(CMainWindow& window, const QString& folder)
    : m_window(window), m_hand(window), m_sFolder(folder)
{
}

bool CTour::Run()
{
    struct sStop
    {
        const char* m_sName;
        bool (CTour::*m_Edit)();
    };
    const sStop stops[] = {
        {"open", &CTour::Open},
        {"hover", &CTour::HoverNode},
        {"type", &CTour::TypeValue},
        {"edited", &CTour::FinishValue},
        {"search", &CTour::SearchOperation},
        {"added", &CTour::AddOperation},
        {"shown", &CTour::ShowPicture},
        {"refused", &CTour::RefuseEdge},
        {"disconnected", &CTour::Disconnect},
        {"undone", &CTour::UndoDisconnect},
        {"several", &CTour::SelectSeveral},
        {"several-edited", &CTour::EditSeveral},
        {"strip", &CTour::EditInNode},
        {"missing-file", &CTour::NameMissingFile},
        {"all-undone", &CTour::UndoEverything},
    };
    QObject::connect(&m_window, &CMainWindow::Rendered, &m_window, [this] { ++m_iRendered; });
    int number = 0;
    for (const sStop& stop : stops)
    {
        m_iAwaited = m_iRendered;
        const bool isDone = (this->*stop.m_Edit)();
        QTest::qWait(g_iPause); // what is to be laid out and painted is then
        const bool isRendered =
            QTest::qWaitFor([this] { return !m_window.IsRendering(); }, g_iPatience);
        const QString name = QStringLiteral("%1-%2.png")
                                 .arg(++number, 2, 10, QLatin1Char('0'))
                                 .arg(QLatin1String(stop.m_sName));
        if (TakePicture(name) && isDone && isRendered)
            continue;
        std::cerr << "the tour fails at " << stop.m_sName << '\n';
        return false;
    }
    return true;
}

bool CTour::Open()
{
    const bool isRendered = WaitForPicture();
    m_first = m_window.GetPicture().GetImage();
    return isRendered && !m_first.isNull();
}

bool CTour::HoverNode()
{
    const int node = NodeOf("gegl:map-relative");
    return m_hand.Move(Canvas(), TitleOf(node)) && m_window.GetStrips().FindStrip(node);
}

bool CTour::TypeValue()
{
    return m_hand.Click(Canvas(), TitleOf(NodeOf(g_sFilter))) &&
           m_hand.Click(ControlOf(&m_window.GetInspector(), "contrast")) &&
           m_hand.Type(QStringLiteral("0.55"));
}

bool CTour::FinishValue()
{
    return m_hand.Key(Qt::Key_Return) && WaitForPicture() &&
           m_window.GetPicture().GetImage() != m_first;
}

bool CTour::SearchOperation()
{
    const QPoint below = PadOf(NodeOf(g_sEnd), "") + QPoint(0, 70);
    return m_hand.Click(Canvas(), TitleOf(NodeOf(g_sEnd))) && m_hand.Move(Canvas(), below) &&
           m_hand.Key(Qt::Key_Tab) && m_hand.Type(QStringLiteral("vign")) &&
           m_window.GetPalette().isVisible();
}

bool CTour::AddOperation()
{
    m_hand.Key(Qt::Key_Return);
    const sGraphEdge* edge = Graph().FindEdge(NodeOf(g_sAdded), "input");
    return edge && edge->m_iFrom == NodeOf(g_sEnd);
}

bool CTour::ShowPicture()
{
    return m_hand.DoubleClick(Canvas(), TitleOf(NodeOf(g_sAdded))) && WaitForPicture() &&
           m_window.GetDocument().GetViewed() == NodeOf(g_sAdded);
}

bool CTour::RefuseEdge()
{
    return m_hand.Drag(Canvas(), PadOf(NodeOf(g_sAdded), ""), PadOf(SharedNode(), "aux"), true) &&
           m_window.GetCanvas().GetConnectTool().IsRefused();
}

bool CTour::Disconnect()
{
    const size_t edges = Graph().GetEdges().size();
    m_hand.Release(Canvas(), PadOf(SharedNode(), "aux"));
    const QPoint from = PadOf(NodeOf("gegl:map-relative"), "aux");
    return m_hand.Drag(Canvas(), from, from + QPoint(90, 70)) &&
           Graph().GetEdges().size() == edges - 1;
}

bool CTour::UndoDisconnect()
{
    return m_hand.Key(Qt::Key_Z, Qt::ControlModifier) &&
           Graph().FindEdge(NodeOf("gegl:map-relative"), "aux");
}

bool CTour::SelectSeveral()
{
    Qt::KeyboardModifiers keys = Qt::NoModifier;
    for (const auto& [id, node] : Graph().GetNodes())
        if (node.GetInfo().m_sName == g_sShape)
        {
            m_hand.Click(Canvas(), TitleOf(id), keys);
            keys = Qt::ControlModifier;
        }
    return m_window.GetScene().GetSelectedNodes().size() > 2;
}

bool CTour::EditSeveral()
{
    const int step = m_window.GetDocument().GetUndoStack().index();
    return m_hand.Click(ControlOf(&m_window.GetInspector(), "opacity")) &&
           m_hand.Type(QStringLiteral("0.6")) && m_hand.Key(Qt::Key_Return) && WaitForPicture() &&
           m_window.GetDocument().GetUndoStack().index() == step + 1;
}

bool CTour::EditInNode()
{
    const int node = NodeOf(g_sEnd);
    m_hand.Move(Canvas(), TitleOf(node));
    QWidget* strip = m_window.GetStrips().FindStrip(node);
    return strip && m_hand.Click(ControlOf(strip, "scale")) && m_hand.Type(QStringLiteral("0.5"));
}

bool CTour::NameMissingFile()
{
    m_hand.Key(Qt::Key_Return);
    m_hand.Click(Canvas(), QPoint(Canvas()->width() - 60, Canvas()->height() - 160));
    if (!m_hand.Key(Qt::Key_Tab) || !m_hand.Type(QStringLiteral("gegl:load")) ||
        !m_hand.Key(Qt::Key_Return))
        return false;
    const int node = NodeOf("gegl:load");
    m_hand.Click(ControlOf(&m_window.GetInspector(), "path"));
    m_hand.Type(QStringLiteral("/no/such/picture.png"));
    m_hand.Key(Qt::Key_Return);
    m_hand.Move(Canvas(), QPoint(10, 10));
    return QTest::qWaitFor(
        [&] { return m_window.GetScene().FindNode(node)->GetState().m_eState == eNodeError; },
        g_iPatience);
}

bool CTour::UndoEverything()
{
    QUndoStack& stack = m_window.GetDocument().GetUndoStack();
    while (stack.canUndo())
        m_hand.Key(Qt::Key_Z, Qt::ControlModifier);
    return QTest::qWaitFor([&] { return m_window.GetPicture().GetImage() == m_first; },
                           g_iPatience);
}

const CGraph& CTour::Graph() const
{
    return m_window.GetDocument().GetGraph();
}

int CTour::NodeOf(const char* operation) const
{
    for (const auto& [id, node] : Graph().GetNodes())
        if (node.GetInfo().m_sName == operation)
            return id;
    return 0;
}

int CTour::SharedNode() const
{
    return Graph().FindEdge(NodeOf(g_sEnd), "input")->m_iFrom;
}

QPoint CTour::TitleOf(int node) const
{
    const QPointF title =
        m_window.GetScene().FindNode(node)->GetFrame().topLeft() + QPointF(70, 14);
    return m_window.GetCanvas().mapFromScene(title);
}

QPoint CTour::PadOf(int node, const char* pad) const
{
    return m_window.GetCanvas().mapFromScene(
        m_window.GetScene().FindNode(node)->PadPosition({node, pad}));
}

QWidget* CTour::Canvas() const
{
    return m_window.GetCanvas().viewport();
}

QWidget* CTour::ControlOf(QWidget* panel, const char* property)
{
    return panel->findChild<QWidget*>(QString::fromUtf8(property));
}

bool CTour::WaitForPicture()
{
    const bool isThere = QTest::qWaitFor([this] { return m_iRendered > m_iAwaited; }, g_iPatience);
    m_iAwaited = m_iRendered;
    return isThere;
}

bool CTour::TakePicture(const QString& name)
{
    QPixmap picture = TakeSnapshot(m_window);
    {
        QPainter painter(&picture);
        m_hand.DrawPointer(painter);
    }
    return QDir().mkpath(m_sFolder) && picture.save(QDir(m_sFolder).filePath(name));
}
