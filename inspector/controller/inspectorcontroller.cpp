#include <inspectorcontroller.h>

#include <inspectordataelement.h>
#include <inspectordatawidget.h>
#include <inspectorview.h>

#include "erasevalue.h"
#include "walk.h"

#include <cassert>
#include <memory>

CInspectorController::IControllerData::~IControllerData() = default;

CInspectorController::CInspectorController() = default;

CInspectorController::CInspectorController(const CInspectorController& other)
{
    *this = other;
}

CInspectorController& CInspectorController::operator=(const CInspectorController& other)
{
    if (this == &other)
        return *this;
    SetInspectorView(other.m_pView);
    m_bPreview = other.m_bPreview;
    m_lItems = other.m_lItems;
    m_mapDirtyItems = other.m_mapDirtyItems;
    m_vControllerDirt = other.m_vControllerDirt;
    m_mapRows.clear();
    m_ulIndexed = 0;
    return *this;
}

CInspectorController::~CInspectorController()
{
    m_bDying = true;
    ClearAllData();
    SetInspectorView(nullptr);
    for (CInspectorView* view : m_vReferrers)
    {
        view->m_pController = nullptr;
        view->m_bControllerGone = true;
    }
    CLifeGuard::Release(m_pLifeGuards);
}

void CInspectorController::SetInspectorView(CInspectorView* view)
{
    if (m_pView)
        EraseValue(m_pView->m_vReferrers, this);
    m_pView = view;
    m_bViewGone = false;
    if (m_pView)
        m_pView->m_vReferrers.push_back(this);
}

void CInspectorController::AddItem(CInspectorDataElement* element, CInspectorDataWidget* widget,
                                   IControllerData* data)
{
    assert(element && "CInspectorController::AddItem: no element");
    assert(widget && "CInspectorController::AddItem: no widget");
    assert(!m_bClosed && "CInspectorController::AddItem: called while all rows are cleared");
    auto* record = new sInspectorControllerData;
    record->m_pElement = element;
    record->m_pWidget = widget;
    element->SetDataControl(widget, this);
    widget->SetDataElement(element);
    widget->m_pOwner = this;
    record->m_pData = data;
    IndexRow(m_lItems.insert(m_lItems.end(), record));
}

void CInspectorController::RemoveItem(CInspectorDataElement* element)
{
    assert(!m_bClosed && "CInspectorController::RemoveItem: called while all rows are cleared");
    const auto row = FindRow(element);
    if (row == m_lItems.end())
        return;
    const CLifeGuard life(*this);
    // The row leaves the registry first: whatever its element or its widget brings about on the way
    // out finds the registry in order.
    const std::unique_ptr<sInspectorControllerData> record(*row);
    UnlinkRow(row);
    if (record->m_pElement)
        record->m_pElement->Disconnect();
    if (life.IsAlive())
        DropNotices(record.get());
}

void CInspectorController::ConnectDataElements()
{
    CWalk walk(*this);
    while (walk.m_Row != m_lItems.end())
    {
        const sInspectorControllerData* record = *walk.m_Row;
        walk.m_bRowGone = false;
        record->m_pElement->Connect();
        if (walk.IsAlive() && !walk.m_bRowGone && record->m_pWidget)
            record->m_pWidget->InitFromElement();
        if (!walk.IsAlive())
            return;
        if (!walk.m_bRowGone)
            ++walk.m_Row;
    }
}

void CInspectorController::ClearAllData()
{
    assert(!m_bClosed && "CInspectorController::ClearAllData: called while all rows are cleared");
    const CLifeGuard life(*this);
    const unsigned long clearing = ++m_ulClearings;
    m_bClosed = true;
    while (!m_mapDirtyItems.empty())
        DropNotices(m_mapDirtyItems.begin()->first);
    m_bClosed = false;
    while (!m_lItems.empty())
    {
        const std::unique_ptr<sInspectorControllerData> record(m_lItems.front());
        UnlinkRow(m_lItems.begin());
        m_bClosed = true;
        // What the host queued meanwhile, when a control that died ended the edit of another.
        DropNotices(record.get());
        if (record->m_pElement)
            record->m_pElement->Disconnect();
        record->DeleteModel();
        m_bClosed = false;
        // A dying control may end an edit of another row, whose host may clear or fill the panel.
        record->DeleteWidget();
        if (!life.IsAlive() || clearing != m_ulClearings)
            return;
    }
    if (m_pView)
        m_pView->RemoveAll();
    DeleteNotices(m_vControllerDirt);
}

bool CInspectorController::WantGroupAroundRoot()
{
    return true;
}

void CInspectorController::CallCommand(const char*, unsigned long)
{
}

void CInspectorController::SetPreviewMode(bool on)
{
    m_bPreview = on;
    if (m_pView)
        m_pView->SetPreviewMode(on);
}

bool CInspectorController::IsPreviewMode()
{
    return m_bPreview;
}
