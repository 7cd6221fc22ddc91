#include "panelcontroller.h"

#include "panelbuilder.h"
#include "propertyelements.h"

#include <inspectorview.h>

#include <QColorDialog>
#include <QFileDialog>

#include <algorithm>
#include <cstring>
#include <utility>

namespace
{

// Null when there are no nodes, or nodes of different operations.
const sOperationInfo* CommonOperation(const CGraph& graph, const std::vector<int>& nodes)
{
    const sOperationInfo* common = nullptr;
    for (const int id : nodes)
    {
        const sGraphNode* node = graph.Find(id);
        if (!node || (common && common != &node->GetInfo()))
            return nullptr;
        common = &node->GetInfo();
    }
    return common;
}

} // namespace

CPanelController::CPanelController(CGraphDocument& document) : m_document(document)
{
    const auto onChange = [this](int node)
    {
        if (std::count(m_vNodes.begin(), m_vNodes.end(), node))
            RefreshInspector();
    };
    QObject::connect(&document, &CGraphDocument::NodeChanged, &m_listener, onChange);
    QObject::connect(&document, &CGraphDocument::NodeRemoved, &m_listener,
                     [this](int node) { OnNodeRemoved(node); });
    QObject::connect(&document, &CGraphDocument::GraphReplaced, &m_listener,
                     [this] { ShowNodes({}); });
}

CPanelController::~CPanelController() = default;

std::vector<const CImageOperation*> CPanelController::GetOperations() const
{
    std::vector<const CImageOperation*> operations;
    for (const int id : m_vNodes)
        if (const sGraphNode* node = m_document.GetGraph().Find(id))
            operations.push_back(node->m_pOperation.get());
    return operations;
}

void CPanelController::ShowNodes(const std::vector<int>& nodes)
{
    if (!nodes.empty() && nodes == m_vNodes)
        return;
    const sOperationInfo* info = CommonOperation(m_document.GetGraph(), nodes);
    m_vNodes = info ? nodes : std::vector<int>();
    if (info && info == m_pInfo)
    {
        ShowNote("");
        RefreshInspector();
        return;
    }
    ClearAllData();
    m_pNote = nullptr;
    m_pInfo = info;
    if (info)
        BuildInspector();
}

void CPanelController::OnNodeRemoved(int node)
{
    if (!std::count(m_vNodes.begin(), m_vNodes.end(), node))
        return;
    std::vector<int> left = m_vNodes;
    left.erase(std::remove(left.begin(), left.end(), node), left.end());
    ShowNodes(left);
}

void CPanelController::SetMessageSink(std::function<void(const std::string&)> sink)
{
    m_sink = std::move(sink);
}

void CPanelController::BuildInspector()
{
    CPanelBuilder(*this, *m_pView, *m_pInfo, IsPreviewMode()).Build();
    ConnectDataElements();
}

void CPanelController::RefreshInspector()
{
    DirtifyController(new IDirtyControllerDataInfo);
}

void CPanelController::CallCommand(const char* command, unsigned long value)
{
    if (std::strcmp(command, g_sReset) == 0)
    {
        m_document.Reset(m_vNodes);
        ShowNote("Every parameter has its first value again.");
    }
    else if (std::strcmp(command, g_sBrowse) == 0)
    {
        Browse(m_pInfo->m_vProperties.at(value));
    }
}

void CPanelController::Browse(const sImageProperty& property)
{
    const QString title = QString::fromStdString(property.m_sLabel);
    const std::vector<int> nodes = m_vNodes;
    const QString current = QString::fromStdString(GetOperations().front()->GetText(property));
    const QString path = property.m_bSavesFile
                             ? QFileDialog::getSaveFileName(m_pDialogParent, title, current)
                             : QFileDialog::getOpenFileName(m_pDialogParent, title, current);
    // The dialog ran the program meanwhile.
    if (!path.isEmpty() && nodes == m_vNodes)
        OnValueWritten(property, m_document.SetText(nodes, property, path.toStdString()));
}

void CPanelController::PickColor(const sImageProperty& property,
                                 const CImageOperation::CColor& current)
{
    const std::vector<int> nodes = m_vNodes;
    const auto part = [&](std::size_t i) { return qBound(0.0, current.at(i), 1.0); };
    const QColor picked = QColorDialog::getColor(
        QColor::fromRgbF(part(0), part(1), part(2), part(3)), m_pDialogParent,
        QString::fromStdString(property.m_sLabel), QColorDialog::ShowAlphaChannel);
    if (picked.isValid() && nodes == m_vNodes)
        m_document.SetColor(nodes, property,
                            {picked.redF(), picked.greenF(), picked.blueF(), picked.alphaF()});
}

void CPanelController::OnValueWritten(const sImageProperty& property, const sWriteResult& result)
{
    // The row shows what the operation made of the value, also when that is the old value.
    DirtifyRowsOf(property);
    ShowNote(result.m_sMessage);
}

void CPanelController::DirtifyRowsOf(const sImageProperty& property)
{
    for (sInspectorControllerData* record : m_lItems)
    {
        const auto* payload = dynamic_cast<sRowPayload*>(record->m_pData);
        if (payload && payload->m_pProperty == &property)
            DirtifyItem(record, nullptr);
    }
}

void CPanelController::ShowNote(const std::string& text)
{
    if (m_pNote && m_pNote->GetText() != text)
    {
        m_pNote->SetText(text.c_str());
        // The note may need another number of lines.
        m_pView->RecomputeLayout();
    }
    if (m_sink)
        m_sink(text);
}

void CPanelController::HandleDirtyItem(sInspectorControllerData* record, IDirtyControllerDataInfo*)
{
    if (auto* element = dynamic_cast<IPropertyElement*>(record->m_pElement))
    {
        element->LoadValue();
        record->m_pElement->UpdateData();
    }
}

void CPanelController::HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&)
{
    for (sInspectorControllerData* record : m_lItems)
        HandleDirtyItem(record, nullptr);
}
