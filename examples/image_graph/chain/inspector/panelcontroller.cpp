#include "panelcontroller.h"

#include "panelbuilder.h"
#include "propertyelements.h"

#include <inspectorview.h>

#include <QColorDialog>
#include <QFileDialog>

#include <cstring>
#include <utility>

CPanelController::CPanelController(CGraphDocument& document) : m_document(document)
{
}

void CPanelController::SetItem(sGraphItem* item)
{
    const sOperationInfo* info = item ? &item->m_pOperation->GetInfo() : nullptr;
    m_pItem = item;
    if (info && info == m_pInfo)
    {
        ShowNote("");
        RefreshInspector();
        return;
    }
    ClearAllData();
    m_pNote = nullptr;
    m_pInfo = info;
    if (item)
        BuildInspector();
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
        m_document.Reset(m_pItem);
        ShowNote("Every parameter has its first value again.");
    }
    else if (std::strcmp(command, g_sBrowse) == 0)
    {
        Browse(m_pItem->m_pOperation->GetInfo().m_vProperties.at(value));
    }
}

void CPanelController::Browse(const sImageProperty& property)
{
    const QString title = QString::fromStdString(property.m_sLabel);
    const QString current = QString::fromStdString(m_pItem->m_pOperation->GetText(property));
    sGraphItem* item = m_pItem;
    const QString path = property.m_bSavesFile
                             ? QFileDialog::getSaveFileName(m_pDialogParent, title, current)
                             : QFileDialog::getOpenFileName(m_pDialogParent, title, current);
    // The dialog ran the program meanwhile.
    if (path.isEmpty() || item != m_pItem)
        return;
    m_document.SetText(item, property, path.toStdString());
    DirtifyRowsOf(property);
}

void CPanelController::PickColor(const sImageProperty& property,
                                 const CImageOperation::CColor& current)
{
    sGraphItem* item = m_pItem;
    const auto part = [&](std::size_t i) { return qBound(0.0, current.at(i), 1.0); };
    const QColor picked = QColorDialog::getColor(
        QColor::fromRgbF(part(0), part(1), part(2), part(3)), m_pDialogParent,
        QString::fromStdString(property.m_sLabel), QColorDialog::ShowAlphaChannel);
    if (picked.isValid() && item == m_pItem)
        m_document.SetColor(item, property,
                            {picked.redF(), picked.greenF(), picked.blueF(), picked.alphaF()});
}

void CPanelController::OnValueWritten(CInspectorDataElement*, const sImageProperty& property,
                                      const sWriteResult& result)
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
