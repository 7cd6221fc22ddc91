#pragma once

#include <inspectorexport.h>

#include <cstddef>
#include <list>
#include <map>
#include <unordered_map>
#include <vector>

class CInspectorDataElement;
class CInspectorDataWidget;
class CInspectorView;

/// The registry of the inspector's rows.
///
/// It owns every element and widget that is given to it, with the host's payload; binds, connects
/// and destroys them; queues the host's notices until the view draws; and moves editing from one
/// control to the next. The host derives from it.
///
/// Rows may be removed, cleared and added from every hook of the host (a changed value, a command,
/// the end of an edit, a delivered notice), except from an element's Disconnect and from the
/// destructors that ClearAllData runs. Everything runs on the user-interface thread.
class INSPECTOR_EXPORT CInspectorController
{
public:
    /// Base of the host's payload of one row. The library never looks into it.
    class INSPECTOR_EXPORT IControllerData
    {
    public:
        virtual ~IControllerData();
    };

    /// Base of the host's notices. Each is created with `new`, given once, and deleted by the
    /// controller: right after its delivery, or undelivered when its row is removed.
    class INSPECTOR_EXPORT IDirtyControllerDataInfo
    {
    public:
        virtual ~IDirtyControllerDataInfo();
    };

    /// One row. Owns its three members and deletes them in this order.
    struct INSPECTOR_EXPORT sInspectorControllerData
    {
        sInspectorControllerData();
        ~sInspectorControllerData();
        sInspectorControllerData(const sInspectorControllerData&) = delete;
        sInspectorControllerData& operator=(const sInspectorControllerData&) = delete;

        /// Deletes the payload and the element; the widget is made to forget the element first.
        void DeleteModel();
        /// Deletes the widget.
        void DeleteWidget();

        IControllerData* m_pData = nullptr;          ///< may be null
        CInspectorDataElement* m_pElement = nullptr; ///< the model side
        CInspectorDataWidget* m_pWidget = nullptr;   ///< null once its toolkit parent destroyed it
    };

    CInspectorController();
    /// A copy shares rows, notices and view with its source: at most one of the two may ever be
    /// cleared or destroyed.
    CInspectorController(const CInspectorController& other);
    /// Shares the other's rows, notices and view, as a copy does.
    CInspectorController& operator=(const CInspectorController& other);
    /// Calls ClearAllData. The view is told to forget the controller and is not deleted.
    virtual ~CInspectorController();

    /// For the host: create the rows of the object that is shown. The library never calls it.
    virtual void BuildInspector() = 0;

    /// Registers a row at the end and takes ownership of all three; \p data may be null, the others
    /// may not. Calls element->SetDataControl, then widget->SetDataElement. Placing the widget is
    /// CInspectorView::AddElement, which the host calls itself.
    ///
    /// The same element must not be added twice: both rows would delete it.
    virtual void AddItem(CInspectorDataElement* element, CInspectorDataWidget* widget,
                         IControllerData* data);

    /// Disconnects and destroys the first row of \p element, with its undelivered notices; an
    /// unknown element is ignored.
    ///
    /// The view's tree keeps the place of the row until the host rebuilds it
    /// (CInspectorView::RemoveAll); until then the place is empty and is not laid out.
    virtual void RemoveItem(CInspectorDataElement* element);

    /// For each row in order: element->Connect, then widget->InitFromElement. Called by the host
    /// once its rows are added.
    virtual void ConnectDataElements();

    /// Starts editing in the control after \p from in display order, and after the last in the
    /// first: CInspectorView::EnsureVisible, then CInspectorDataWidget::StartEditing. Every control
    /// is a stop, whether it can be edited or not. From a widget that is not in the view, editing
    /// goes to the first control. A view must be set.
    virtual void GiveFocusToNextElement(CInspectorDataWidget* from);
    /// The same backwards.
    virtual void GiveFocusToPrevElement(CInspectorDataWidget* from);

    /// For the host: bring the rows up to date with the object that is shown. The library never
    /// calls it.
    virtual void RefreshInspector() = 0;

    /// For hosts that draw a frame around the whole panel; true here.
    virtual bool WantGroupAroundRoot();

    /// A named command of an element, such as a pressed button. The host overrides it; it may
    /// remove any row.
    virtual void CallCommand(const char* command, unsigned long value);

    /// Stores the flag here and in the view (if one is set). Neither lays out nor repaints: follow
    /// it with CInspectorView::RecomputeLayout.
    virtual void SetPreviewMode(bool on);
    /// The controller's own flag; the view is not asked.
    virtual bool IsPreviewMode();

    /// For the host: bring one row up to date. \p info is null for a row that was dirtied without a
    /// notice. Called just before the view draws; it may remove this or any other row, and queue
    /// further notices: those for this row or for rows at higher addresses are delivered in the
    /// same pass.
    virtual void HandleDirtyItem(sInspectorControllerData* record,
                                 IDirtyControllerDataInfo* info) = 0;

    /// For the host: handle all notices that concern the whole panel. \p dirt is the queue itself,
    /// whose notices are deleted and which is emptied afterwards; it may hold null. The handler may
    /// clear and fill the panel (ClearAllData empties \p dirt too).
    virtual void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>& dirt) = 0;

    /// Stores the view, which is not owned; null is allowed. The view's side of the link is
    /// CInspectorView::SetController.
    void SetInspectorView(CInspectorView* view);

    /// Drops every notice, disconnects and destroys every row in order, and empties the view
    /// (CInspectorView::RemoveAll, if a view is set).
    void ClearAllData();

    /// Queues a notice for the whole panel and asks the view for a repaint. A view must be set.
    void DirtifyController(IDirtyControllerDataInfo* info);

    /// Queues a notice for a row, or marks the row dirty when \p info is null, and asks the view
    /// for a repaint. A view must be set (one that died since is not missed). The same notice must
    /// not be queued twice.
    void DirtifyItem(sInspectorControllerData* record, IDirtyControllerDataInfo* info);

    /// Delivers and deletes every queued notice: those for the whole panel first, in one call, then
    /// row by row in ascending order of the records' addresses. The view calls it before it draws.
    /// A call from inside a delivery does nothing.
    void HandleDirtyItems();

protected:
    /// The view that shows the rows; not owned.
    CInspectorView* m_pView = nullptr;
    /// Preview mode.
    bool m_bPreview = false;
    /// The rows in the order in which they were added; owned.
    std::list<sInspectorControllerData*> m_lItems;
    /// The dirty rows and their notices; an empty array is a row that is dirty without a notice.
    std::map<sInspectorControllerData*, std::vector<IDirtyControllerDataInfo*>> m_mapDirtyItems;
    /// The notices for the whole panel.
    std::vector<IDirtyControllerDataInfo*> m_vControllerDirt;

private:
    friend class CInspectorDataWidget;
    friend class CInspectorView;

    using CRows = std::list<sInspectorControllerData*>;
    class CLifeGuard;
    class CDelivery;
    class CWalk;
    class CFocusTarget;

    void IndexRow(CRows::iterator row);
    CRows::iterator FindRow(const CInspectorDataElement* element);
    void UnlinkRow(CRows::iterator row);
    void StartEditingAt(std::size_t place);
    /// Returns false when the controller did not survive it.
    bool DeliverRow(CDelivery& delivery, sInspectorControllerData* record,
                    std::vector<IDirtyControllerDataInfo*>& notices);
    void DropNotices(sInspectorControllerData* record);
    static void DeleteNotices(std::vector<IDirtyControllerDataInfo*>& notices);
    /// The widget was destroyed by its toolkit parent; its row goes on without it.
    void ForgetWidget(CInspectorDataWidget* widget);

    /// The first row of each element; complete while m_ulIndexed equals the number of rows.
    std::unordered_map<const CInspectorDataElement*, CRows::iterator> m_mapRows;
    std::size_t m_ulIndexed = 0;
    /// Views whose controller this is, to be told when it dies.
    std::vector<CInspectorView*> m_vReferrers;
    /// Grows with every clearing, so that an outer one sees that it was overtaken.
    unsigned long m_ulClearings = 0;
    /// True while the host may not come back into the registry.
    bool m_bClosed = false;
    /// True once the view died: it is not missed.
    bool m_bViewGone = false;
    CLifeGuard* m_pLifeGuards = nullptr;
    CDelivery* m_pDelivery = nullptr;
    CWalk* m_pWalks = nullptr;
    CFocusTarget* m_pFocusTargets = nullptr;
    /// True once the host's part of the object is gone, and its handlers with it.
    bool m_bDying = false;
};
