#pragma once

#include "../graph/graphdocument.h"

#include <inspectorcontroller.h>

#include <QPointer>
#include <QWidget>

#include <functional>

class CStaticDataElement;

/// The controller of a panel: holds the rows of one or several nodes of the same operation, and
/// brings them up to date when the document changes.
class CPanelController : public CInspectorController
{
public:
    explicit CPanelController(CGraphDocument& document);
    ~CPanelController() override;

    CGraphDocument& GetDocument() { return m_document; }
    /// The nodes that the rows show; all of one operation.
    const std::vector<int>& GetNodes() const { return m_vNodes; }
    std::vector<const CImageOperation*> GetOperations() const;
    /// The operation of the nodes; null when none are shown.
    const sOperationInfo* GetInfo() const { return m_pInfo; }

    /// Shows nodes; none when they are of different operations. The rows stay when they are of the
    /// operation that is shown already: the values reach them before they are painted next.
    void ShowNodes(const std::vector<int>& nodes);
    /// The message of the row that says what became of a value; the row of the panel shows it.
    void SetNoteElement(CStaticDataElement* element) { m_pNote = element; }
    /// Where such messages go beside the panel.
    void SetMessageSink(std::function<void(const std::string&)> sink);
    void SetDialogParent(QWidget* parent) { m_pDialogParent = parent; }

    /// Commands of the panel's buttons.
    static constexpr const char* g_sReset = "reset";
    static constexpr const char* g_sBrowse = "browse"; ///< the value is the property's number
    void CallCommand(const char* command, unsigned long value) override;

    /// Called by the elements.
    void OnValueWritten(const sImageProperty& property, const sWriteResult& result);
    void PickColor(const sImageProperty& property, const CImageOperation::CColor& current);

    void BuildInspector() override;
    /// Marks everything as out of date; the rows are read again before they are painted next.
    void RefreshInspector() override;
    void HandleDirtyItem(sInspectorControllerData* record, IDirtyControllerDataInfo* info) override;
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>& dirt) override;

private:
    void DirtifyRowsOf(const sImageProperty& property);
    void ShowNote(const std::string& text);
    void Browse(const sImageProperty& property);
    void OnNodeRemoved(int node);

    CGraphDocument& m_document;
    QObject m_listener; ///< to the document
    std::vector<int> m_vNodes;
    const sOperationInfo* m_pInfo = nullptr; ///< of the operation that the rows are made for
    CStaticDataElement* m_pNote = nullptr;
    std::function<void(const std::string&)> m_sink;
    QPointer<QWidget> m_pDialogParent;
};

/// The payload of a row: which property it shows.
struct sRowPayload : public CInspectorController::IControllerData
{
    explicit sRowPayload(const sImageProperty* property) : m_pProperty(property) {}
    const sImageProperty* m_pProperty;
};
