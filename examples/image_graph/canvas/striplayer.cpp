#include "striplayer.h"

#include "nodelook.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>

#include <algorithm>

namespace
{

constexpr int g_iFloatingHeight = 24;
constexpr int g_iFloatingWidth = 260;

} // namespace

CStripLayer::CStripLayer(CCanvasView& view, CFactory factory)
    : QObject(&view), m_view(view), m_scene(view.GetScene()), m_factory(std::move(factory))
{
    m_leave.setSingleShot(true);
    m_leave.setInterval(g_iLeaveTime);
    connect(&m_leave, &QTimer::timeout, this, &CStripLayer::OnLeft);
    connect(&m_scene, &CGraphScene::NodeHovered, this, &CStripLayer::OnHover);
    connect(&m_scene, &CGraphScene::NodesChanged, this, &CStripLayer::Update);
    connect(&m_scene, &CGraphScene::PlacesChanged, this, &CStripLayer::Place);
    connect(&m_view, &CCanvasView::Moved, this, &CStripLayer::Place);
    Update();
}

CStripLayer::~CStripLayer()
{
    for (const auto& [node, strip] : m_vStrips)
        delete strip.data();
}

QWidget* CStripLayer::FindStrip(int node) const
{
    const auto found = m_vStrips.find(node);
    return found == m_vStrips.end() ? nullptr : found->second.data();
}

void CStripLayer::OnHover(int node, bool isHovered)
{
    if (!isHovered)
        return m_leave.start();
    if (IsEditing())
        return;
    m_leave.stop();
    m_iHovered = node;
    Update();
}

void CStripLayer::OnLeft()
{
    // The row that is being edited stays until that is over.
    if (IsEditing())
        return m_leave.start();
    m_iHovered = 0;
    Update();
}

bool CStripLayer::IsEditing() const
{
    const QWidget* focus = QApplication::focusWidget();
    if (!qobject_cast<const QLineEdit*>(focus) && !qobject_cast<const QListWidget*>(focus))
        return false;
    // An editor floats in a window of its own or straight in that of its field.
    return focus->window()->windowType() == Qt::ToolTip || focus->parentWidget() == m_view.window();
}

bool CStripLayer::IsWanted(int node) const
{
    const CNodeItem* item = m_scene.FindNode(node);
    if (!item)
        return false;
    // Whoever has no parameters says so.
    return node == m_iHovered || item->IsPinned() || item->GetState().m_eState != eNodeIdle ||
           m_scene.GetGraph().Find(node)->GetInfo().m_vProperties.empty();
}

void CStripLayer::Update()
{
    for (auto strip = m_vStrips.begin(); strip != m_vStrips.end();)
    {
        if (IsWanted(strip->first))
        {
            ++strip;
            continue;
        }
        // What is taken away may be what has led here.
        if (strip->second)
        {
            strip->second->hide();
            strip->second->deleteLater();
        }
        strip = m_vStrips.erase(strip);
    }
    for (const auto& [node, item] : m_scene.GetNodeItems())
        if (IsWanted(node) && !FindStrip(node))
            m_vStrips[node] = MakeStrip(node);
    Place();
}

QWidget* CStripLayer::MakeStrip(int node)
{
    QWidget* strip = m_factory(node, m_view.viewport());
    // It covers what the node says there.
    QPalette palette = strip->palette();
    palette.setColor(QPalette::Window, nodelook::g_colorBody);
    strip->setPalette(palette);
    strip->setAutoFillBackground(true);
    return strip;
}

void CStripLayer::Place()
{
    for (const auto& [node, strip] : m_vStrips)
    {
        if (!strip || !m_scene.FindNode(node))
            continue;
        bool isShown = true;
        strip->setGeometry(AreaOf(node, isShown));
        strip->setVisible(isShown);
        if (node == m_iHovered)
            strip->raise();
    }
}

QRect CStripLayer::AreaOf(int node, bool& isShown) const
{
    const QRectF frame = m_scene.FindNode(node)->GetFrame();
    if (m_view.GetZoom() >= g_dLeastZoom)
        return m_view.mapFromScene(nodelook::StripArea().translated(frame.topLeft()))
            .boundingRect();
    isShown = node == m_iHovered;
    const QRect shown = m_view.mapFromScene(frame).boundingRect();
    const int width = std::max(shown.width(), g_iFloatingWidth);
    return {shown.center().x() - width / 2, shown.bottom() + 2, width, g_iFloatingHeight};
}
