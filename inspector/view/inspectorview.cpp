#include <inspectorview.h>

#include <inspectorcontroller.h>
#include <inspectordatawidget.h>

#include "../controller/erasevalue.h"
#include "../model/textorempty.h"
#include "checkedlist.h"

#include <memory>
#include <new>

namespace
{

void FreeRequest(CInspectorView::sRequestSize* request)
{
    if (!request)
        return;
    // The record has a table of operations but no virtual destructor, and a host may have stored a
    // larger record of its own: the memory is given back without naming a size.
    request->CInspectorView::sRequestSize::~sRequestSize();
    ::operator delete(request);
}

} // namespace

CInspectorView::CInspectorView() = default;

CInspectorView::CInspectorView(const CInspectorView& other)
{
    *this = other;
}

CInspectorView& CInspectorView::operator=(const CInspectorView& other)
{
    if (this == &other)
        return *this;
    m_setControlHolders = other.m_setControlHolders;
    m_setHolders = other.m_setHolders;
    m_lElements = other.m_lElements;
    SetController(other.m_pController);
    m_iInspectorWidth = other.m_iInspectorWidth;
    m_iInspectorHeight = other.m_iInspectorHeight;
    m_iContentHeight = other.m_iContentHeight;
    m_bAlignLabels = other.m_bAlignLabels;
    m_iOffsetX = other.m_iOffsetX;
    m_iOffsetY = other.m_iOffsetY;
    m_bPreview = other.m_bPreview;
    m_bContentShown = other.m_bContentShown;
    m_bStacked = other.m_bStacked;
    m_bControlOrderKnown = false;
    m_mapHolders.clear();
    m_ulIndexed = 0;
    m_bStopsKnown = false;
    return *this;
}

CInspectorView::~CInspectorView()
{
    CInspectorView::RemoveAll();
    SetController(nullptr);
    for (CInspectorController* controller : m_vReferrers)
    {
        controller->m_pView = nullptr;
        controller->m_bViewGone = true;
    }
}

void CInspectorView::SetController(CInspectorController* controller)
{
    if (m_pController)
        EraseValue(m_pController->m_vReferrers, this);
    m_pController = controller;
    m_bControllerGone = false;
    if (m_pController)
        m_pController->m_vReferrers.push_back(this);
}

void CInspectorView::SetPreviewMode(bool on)
{
    m_bPreview = on;
}

std::list<CInspectorView::sInspectorElement>* CInspectorView::GetListElements()
{
    // The caller may move nodes about.
    m_bStopsKnown = false;
    m_bStacked = false;
    return &m_lElements;
}

void CInspectorView::RemoveAll()
{
    for (sInspectorHolder* holder : m_setControlHolders)
    {
        if (CInspectorDataWidget* widget = holder->GetWidget())
            widget->m_pView = nullptr;
    }
    m_setControlHolders.clear();
    m_vControlOrder.clear();
    m_bControlOrderKnown = false;
    m_mapHolders.clear();
    m_ulIndexed = 0;
    m_vStops.clear();
    m_bStopsKnown = false;
    m_lElements.clear();
    for (sInspectorHolder* holder : m_setHolders)
    {
        FreeRequest(holder->m_pRequest);
        delete holder;
    }
    m_setHolders.clear();
}

CInspectorView::sInspectorElement& CInspectorView::AddNode(int kind, const char* name,
                                                           sInspectorElement* parent)
{
    m_bStopsKnown = false;
    m_bStacked = false;
    sInspectorElement node;
    node.m_iKind = kind;
    node.m_sName = TextOrEmpty(name);
    node.m_pParent = parent;
    return Append(parent ? parent->m_lChildren : m_lElements, std::move(node));
}

CInspectorView::sInspectorElement* CInspectorView::AddGroup(const char* name,
                                                            sInspectorElement* parent)
{
    sInspectorElement& group = AddNode(eElementGroup, name, parent);
    UpdateView();
    return &group;
}

CInspectorView::sInspectorElement* CInspectorView::AddSingleLineContainer(const char* name,
                                                                          sRequestSize* request,
                                                                          sInspectorElement* parent)
{
    sInspectorElement& row = AddNode(eElementRow, name, parent);
    row.m_pHolder = CreateNewHolder();
    row.m_pHolder->m_iKind = eHolderContainer;
    CopyRequest(row.m_pHolder, request);
    UpdateView();
    return &row;
}

CInspectorView::sInspectorHolder*
CInspectorView::AddElement(CInspectorDataElement* element, CInspectorDataWidget* widget,
                           const char* label, sRequestSize* request, sInspectorElement* parent)
{
    sInspectorHolder* holder = nullptr;
    if (parent && parent->m_iKind == eElementRow)
    {
        m_bStopsKnown = false;
        holder = CreateControlHolder(element, widget, request);
        Append(parent->m_pHolder->m_lChildren, holder);
    }
    else
    {
        sInspectorElement& row = AddNode(eElementRow, label, parent);
        holder = CreateControlHolder(element, widget, request);
        row.m_pHolder = holder;
    }
    m_setControlHolders.insert(holder);
    m_bControlOrderKnown = false;
    IndexHolder(holder);
    if (widget->m_pView && widget->m_pView != this)
        widget->m_pView->ForgetWidget(widget);
    widget->m_pView = this;
    ParentControlToInspector(widget);
    widget->Show();
    UpdateView();
    return holder;
}

CInspectorView::sInspectorHolder* CInspectorView::CreateNewHolder()
{
    auto holder = std::make_unique<sInspectorHolder>();
    m_setHolders.insert(holder.get());
    return holder.release();
}

CInspectorView::sInspectorHolder*
CInspectorView::CreateControlHolder(CInspectorDataElement* element, CInspectorDataWidget* widget,
                                    sRequestSize* request)
{
    sInspectorHolder* holder = CreateNewHolder();
    holder->m_pElement = element;
    holder->m_pWidget = widget;
    CopyRequest(holder, request);
    return holder;
}

void CInspectorView::CopyRequest(sInspectorHolder* holder, sRequestSize* request)
{
    if (!request)
        return;
    if (!holder->m_pRequest)
        holder->m_pRequest = new sRequestSize;
    holder->m_pRequest->CopyValue(request);
}

void CInspectorView::RemoveEmptyGroups()
{
    m_bStopsKnown = false;
    RemoveEmptyGroups(m_lElements);
}

void CInspectorView::RemoveEmptyGroups(std::list<sInspectorElement>& nodes)
{
    for (auto node = nodes.begin(); node != nodes.end();)
    {
        RemoveEmptyGroups(node->m_lChildren);
        if (node->m_iKind == eElementGroup && node->m_lChildren.empty())
            node = nodes.erase(node);
        else
            ++node;
    }
}

void CInspectorView::ResizeInspector(int width, int height)
{
    if (width == m_iInspectorWidth && height == m_iInspectorHeight)
        return;
    m_iInspectorWidth = width;
    m_iInspectorHeight = height;
    RecomputeLayout();
}

int CInspectorView::GetCurrentContentHeight()
{
    return m_iContentHeight;
}

int CInspectorView::GetInspectorLeftMargin()
{
    return m_bPreview ? 0 : 5;
}

int CInspectorView::GetInspectorRightMargin()
{
    return m_bPreview ? 0 : 5;
}

int CInspectorView::GetInspectorTopMargin()
{
    return m_bPreview ? 0 : 5;
}

int CInspectorView::GetInspectorBottomMargin()
{
    return m_bPreview ? 0 : 5;
}

int CInspectorView::GetGroupLeftMargin()
{
    return m_bPreview ? 0 : 5;
}

int CInspectorView::GetGroupRightMargin()
{
    return m_bPreview ? 0 : 5;
}

int CInspectorView::GetGroupTopMargin()
{
    return m_bPreview ? 0 : 5;
}

int CInspectorView::GetGroupBottomMargin()
{
    return m_bPreview ? 0 : 5;
}

int CInspectorView::GetGroupLabelHeight()
{
    return m_bPreview ? 0 : 10;
}

int CInspectorView::GetHeightBetweenControl()
{
    return m_bPreview ? 0 : 5;
}

int CInspectorView::GetElementLabelWidth(sInspectorElement*)
{
    return 0;
}
