#pragma once

#include <support/calls.h>
#include <support/recordingcontroller.h>
#include <support/recordingelement.h>
#include <support/recordingview.h>
#include <support/recordingwidget.h>

#include <simpledataelement.h>

#include <memory>
#include <string>
#include <vector>

/// A whole host: a view and a controller that know each other, and rows of text elements. The row
/// "a" has the element "a.element", the widget "a.widget" and the payload "a.data".
class CRecordingHost
{
public:
    using CElement = TRecordingElement<CSimpleDataElement>;
    using CRecord = CRecordingController::CRecord;
    using CNode = CInspectorView::sInspectorElement;

    struct sRow
    {
        CElement* m_pElement = nullptr;
        CRecordingTextWidget* m_pWidget = nullptr;
        CRecordingPayload* m_pData = nullptr;
        CRecord* m_pRecord = nullptr;
    };

    CRecordingHost();
    ~CRecordingHost();

    /// Registers a row and places it in the view. The log is not touched afterwards.
    sRow AddRow(const std::string& name, CNode* parent = nullptr);
    /// Registers a row only.
    sRow RegisterRow(const std::string& name);
    /// Rows in ascending order of their records' addresses, named "r0", "r1" and so on.
    std::vector<sRow> AddRowsByAddress(std::size_t count);

    CRecordingNotice* Notice(const std::string& name);
    /// Queues a notice of this name, which is returned.
    CRecordingNotice* Dirtify(const sRow& row, const std::string& name);

    /// The calls of the end of a row, in the stated order.
    static CCalls End(const std::string& name);

    CCallLog m_log;
    std::unique_ptr<CRecordingView> m_pView;
    std::unique_ptr<CRecordingController> m_pController;
};
