#include <qtinspectorview.h>

#include <inspectorcontroller.h>
#include <inspectordatawidget.h>

#include "../view/pixels.h"
#include "labelmeter.h"
#include "layoutoperations.h"
#include "panelcontent.h"
#include "wheelfilter.h"

#include <QPointer>
#include <QScrollBar>

#include <memory>
#include <typeinfo>
#include <utility>
#include <vector>

namespace
{

constexpr int g_iScrollBarWidth = 20;
constexpr int g_iTextRowHeight = 20;
constexpr int g_iRowsPerNotch = 3;

} // namespace

CQTInspectorView::CQTInspectorView()
    : m_pContent(new CPanelContent(*this)), m_pScrollBar(new QScrollBar(this)),
      m_pLabelMeter(std::make_unique<CLabelMeter>())
{
    m_pContent->show();
    m_pScrollBar->hide();
    connect(m_pScrollBar, SIGNAL(valueChanged(int)), this, SLOT(SliderValueChanged(int)));
    const int row = g_iTextRowHeight + CQTInspectorView::GetHeightBetweenControl();
    new CWheelFilter(*this, *m_pScrollBar, g_iRowsPerNotch * row);
}

CQTInspectorView::~CQTInspectorView()
{
    ReleaseControls();
    delete std::exchange(m_pContent, nullptr);
    delete std::exchange(m_pScrollBar, nullptr);
}

void CQTInspectorView::ReleaseControls()
{
    // Rows belong to their controller, which deletes their controls in its own time, also those
    // that have no place in the tree any more. A control that loses the focus tells the host, who
    // may remove any of them meanwhile.
    std::vector<QPointer<QWidget>> owned;
    for (QObject* child : m_pContent->children())
    {
        const auto* control = dynamic_cast<CInspectorDataWidget*>(child);
        if (control && control->m_pOwner)
            owned.emplace_back(static_cast<QWidget*>(child));
    }
    for (const QPointer<QWidget>& widget : owned)
    {
        if (widget && widget->parentWidget() == m_pContent)
            widget->setParent(nullptr);
    }
}

void CQTInspectorView::SetPreviewMessage(const std::string& message, QColor color)
{
    if (&message != &m_sPreviewMessage)
        m_sPreviewMessage = message;
    m_colorPreview = color;
    update();
}

bool CQTInspectorView::HasPreviewMessage()
{
    return !m_sPreviewMessage.empty();
}

void CQTInspectorView::ResizeInspector(int width, int height)
{
    const CWholePlacement placement(*this, m_pContent);
    const int contentWidth = pixels::Difference(width, g_iScrollBarWidth);
    if (height == -1)
    {
        CInspectorView::ResizeInspector(contentWidth, height);
        height = m_iInspectorHeight;
    }
    resize(ReachableSize(width, height));
    CInspectorView::ResizeInspector(contentWidth, height);
    m_pContent->resize(ReachableSize(contentWidth, height));
    OnContentHeightSet();
}

void CQTInspectorView::UpdateView()
{
    const bool canRepaint = isVisible() && updatesEnabled();
    // The toolkit would look through the panel again.
    if (canRepaint && m_bRepaintAsked)
        return;
    m_bRepaintAsked = canRepaint;
    update();
}

void CQTInspectorView::OnContentHeightSet()
{
    const CWholePlacement placement(*this, m_pContent);
    if (m_iInspectorHeight >= m_iContentHeight)
    {
        m_pScrollBar->setValue(0);
        m_pScrollBar->hide();
    }
    else
    {
        m_pScrollBar->move(width() - g_iScrollBarWidth, 0);
        m_pScrollBar->resize(g_iScrollBarWidth, height());
        m_pScrollBar->setPageStep(m_iInspectorHeight);
        m_pScrollBar->setMinimum(0);
        m_pScrollBar->setMaximum(pixels::Difference(m_iContentHeight, m_iInspectorHeight));
        m_pScrollBar->show();
    }
    OffsetControls(0, m_pScrollBar->value());
    UpdateView();
}

void CQTInspectorView::SliderValueChanged(int)
{
    const int value = m_pScrollBar->value();
    CWholePlacement placement(*this, m_pContent, pixels::Difference(m_iOffsetY, value));
    OffsetControls(0, value);
    const QRect area = FindMovablePixels();
    if (area.isEmpty() || !placement.MovePixels(area))
        UpdateView();
}

QRect CQTInspectorView::FindMovablePixels() const
{
    // A derived class may draw what does not scroll, and a panel inside of another widget lies on
    // what that one draws, unless it fills its own background.
    const bool isFilled = isWindow() || autoFillBackground();
    if (typeid(*this) != typeid(CQTInspectorView) || !isFilled || !m_sPreviewMessage.empty() ||
        m_bRepaintAsked || !isVisible() || !updatesEnabled())
        return {};
    const QBrush fill = palette().brush(autoFillBackground() ? backgroundRole() : QPalette::Window);
    const bool isPlain = fill.style() == Qt::SolidPattern && fill.isOpaque() &&
                         !testAttribute(Qt::WA_StyledBackground) &&
                         !testAttribute(Qt::WA_NoSystemBackground) && !graphicsEffect();
    if (!isPlain)
        return {};
    for (const QObject* child : children())
    {
        if (child->isWidgetType() && child != m_pContent && child != m_pScrollBar)
            return {};
    }
    const QRect bar = m_pScrollBar->geometry();
    if (m_pScrollBar->isHidden() || bar != QRect(width() - bar.width(), 0, bar.width(), height()))
        return {};
    return {0, 0, bar.x(), height()};
}

void CQTInspectorView::EnsureVisible(CInspectorDataWidget* widget)
{
    const sInspectorHolder* holder = GetHolderFromControl(widget);
    if (!holder)
        return;
    const int top = pixels::Difference(holder->m_iY, m_iOffsetY);
    const int bottom = pixels::Sum(top, holder->m_iHeight);
    if (top < 0)
        m_pScrollBar->setValue(holder->m_iY);
    else if (bottom > m_iInspectorHeight)
        m_pScrollBar->setValue(
            pixels::Difference(pixels::Sum(m_iOffsetY, bottom), m_iInspectorHeight));
    else
        m_pScrollBar->setValue(m_iOffsetY);
}

int CQTInspectorView::GetGroupLeftMargin()
{
    return 5;
}

int CQTInspectorView::GetGroupRightMargin()
{
    return 5;
}

int CQTInspectorView::GetGroupTopMargin()
{
    return 5;
}

int CQTInspectorView::GetGroupBottomMargin()
{
    return 5;
}

int CQTInspectorView::GetGroupLabelHeight()
{
    return 14;
}

int CQTInspectorView::GetHeightBetweenControl()
{
    return 5;
}

int CQTInspectorView::GetElementLabelWidth(sInspectorElement* element)
{
    if (element->m_sName.empty())
        return 0;
    // A style sheet has its say about the font before the view is first shown.
    ensurePolished();
    return m_pLabelMeter->GetWidth(*element, font(), m_bPreview, m_setHolders.size());
}

void CQTInspectorView::OnToggleShowContent(bool shown)
{
    const CWholePlacement placement(*this, m_pContent);
    CInspectorView::OnToggleShowContent(shown);
    UpdateView();
}

void CQTInspectorView::ParentControlToInspector(CInspectorDataWidget* widget)
{
    auto* control = dynamic_cast<QWidget*>(widget);
    if (!control)
        return;
    control->setParent(m_pContent);
    // Parts of what the toolkit keeps for the control, far from the control itself.
    widget->m_apFetched[0] = &control->geometry();
    widget->m_apFetched[1] = &control->children();
}
