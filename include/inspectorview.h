#pragma once

#include <inspectorexport.h>

#include <cstddef>
#include <list>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

class CInspectorController;
class CInspectorDataElement;
class CInspectorDataWidget;

/// The toolkit-free layout engine of the inspector.
///
/// It holds a tree of groups, rows and single-line containers, computes the widths of labels and
/// controls, stacks the rows from top to bottom and places the controls. A toolkit class derives
/// from it, supplies the metrics and shows the result (CQTInspectorView).
///
/// All sizes and positions are signed 32-bit pixels; sums and products that do not fit wrap around.
/// The view owns its nodes and holders, never elements or widgets. The tree is changed through the
/// operations of the view; the fields of nodes and holders may be read at any time.
class INSPECTOR_EXPORT CInspectorView
{
public:
    /// What a node of the tree is.
    enum eElementKind
    {
        eElementGroup = 0, ///< a frame around rows and groups
        eElementRow = 1,   ///< a single control or a single-line container
    };

    /// What a holder lays out.
    enum eHolderKind
    {
        eHolderControl = 0,   ///< one control
        eHolderContainer = 1, ///< several controls side by side
    };

    /// How a bound of a size request is read.
    enum eRequestSizeType : int
    {
        eRequestSizeAbsolute = 0, ///< pixels
        eRequestSizeRelative = 1, ///< percent of the reference width
    };

    /// Option bits of a size request; the other bits are free for the host.
    enum eRequestOption
    {
        eRequestOptionNoLabel = 1, ///< no label column when sibling rows share one
    };

    /// How wide a control or a single-line container may be: a lower and an upper bound.
    ///
    /// The view keeps a copy of the record it is given: later changes of the caller's record have
    /// no effect. The copy is a plain record; a host that resolves its bounds in its own way stores
    /// a derived record in sInspectorHolder::m_pRequest, which then belongs to the view.
    struct INSPECTOR_EXPORT sRequestSize
    {
        /// Neither bound given, no options.
        sRequestSize();
        /// Copies the five fields; the copy answers with the base operations.
        sRequestSize(const sRequestSize& other);
        /// Copies the five fields.
        sRequestSize& operator=(const sRequestSize& other);

        /// Copies the five fields; \p source must not be null.
        void CopyValue(sRequestSize* source);

        /// Sets the lower bound. Like all setters it stores what it gets, without any clamping. An
        /// absolute -1 means that the bound is not given.
        void SetMinValue(eRequestSizeType type, int value);
        /// Sets the lower bound in pixels.
        void SetMinValueAbsolute(int value);
        /// Sets the lower bound in percent of the width of the row.
        void SetMinValueRelative(int value);
        /// Sets the upper bound.
        void SetMaxValue(eRequestSizeType type, int value);
        /// Sets the upper bound in pixels.
        void SetMaxValueAbsolute(int value);
        /// Sets the upper bound in percent of the width of the row.
        void SetMaxValueRelative(int value);

        /// All option bits.
        int GetOptions();
        /// Replaces all option bits.
        void SetOptions(int options);

        /// The lower bound in pixels for a row of the given width, or -1 when it is not given. A
        /// relative bound is value × width / 100, truncated toward zero.
        virtual int GetMinValue(int reference);
        /// The upper bound, likewise.
        virtual int GetMaxValue(int reference);

        eRequestSizeType m_eMinType = eRequestSizeAbsolute; ///< how the lower bound is read
        int m_iMin = -1;                                    ///< pixels or percent
        eRequestSizeType m_eMaxType = eRequestSizeAbsolute; ///< how the upper bound is read
        int m_iMax = -1;                                    ///< pixels or percent
        int m_iOptions = 0;                                 ///< eRequestOption bits
    };

    /// The layout state of one control or single-line container.
    struct sInspectorHolder
    {
        CInspectorDataElement* m_pElement = nullptr; ///< null for a container
        CInspectorDataWidget* m_pWidget = nullptr;   ///< null for a container
        int m_iKind = eHolderControl;                ///< an eHolderKind
        sRequestSize* m_pRequest = nullptr;          ///< owned; null when no bound is given
        std::list<sInspectorHolder*> m_lChildren;    ///< a container's controls, left to right
        int m_iWidth = 0;                            ///< as handed to ResizeWidget
        int m_iHeight = 0;                           ///< as handed to ResizeWidget
        int m_iX = 0; ///< as handed to MoveWidget, before the scroll offset
        int m_iY = 0; ///< as handed to MoveWidget, before the scroll offset

        /// True once the widget was destroyed; the holder stays, and nothing is called on it.
        bool m_bWidgetGone = false;
        /// The place among the controls in display order, while the view has it at hand.
        std::size_t m_ulStop = 0;

        /// The widget, or null when there is none (any more).
        CInspectorDataWidget* GetWidget() const { return m_bWidgetGone ? nullptr : m_pWidget; }
    };

    /// A node of the tree. Its address is its identity and stays valid until the node is removed.
    struct sInspectorElement
    {
        int m_iKind = eElementGroup;              ///< an eElementKind
        std::list<sInspectorElement> m_lChildren; ///< only groups have children
        sInspectorHolder* m_pHolder = nullptr;    ///< null for a group
        std::string m_sName;                      ///< the caption or label; may be empty
        sInspectorElement* m_pParent = nullptr;   ///< null at the top level
        int m_iWidth = 0;                         ///< set by the width pass
        int m_iHeight = 0;                        ///< of the row, or of the group with its frame
        int m_iX = 0;                             ///< left edge
        int m_iY = 0;                             ///< top edge, before the scroll offset
        int m_iLabelWidth = 0;                    ///< of a row's label column

        /// Where the toolkit class found the width of the name the last time, for it to look there
        /// first.
        unsigned m_uLabelPlace = 0;
    };

    /// One control of a single-line container while the width is shared out.
    struct sPositionHolder
    {
        int m_iMin = 0;                        ///< resolved lower bound
        int m_iMax = 0;                        ///< resolved upper bound
        sInspectorHolder* m_pHolder = nullptr; ///< of the control
        int m_iWidth = 0;                      ///< given so far; starts at the minimum
        int m_iRoom = 0;                       ///< maximum - minimum
        int m_iIndex = 0;                      ///< place in the container
    };

    CInspectorView();
    /// A copy shares the holders with its source: only one of the two may be emptied or destroyed
    /// while the other is in use.
    CInspectorView(const CInspectorView& other);
    /// Shares the other's holders, as a copy does.
    CInspectorView& operator=(const CInspectorView& other);
    /// Calls RemoveAll. A controller that knows the view is made to forget it.
    virtual ~CInspectorView();

    /// Frees the tree and all holders. Widgets and elements are left alone, no layout or repaint is
    /// asked for; size, offsets and modes are kept.
    virtual void RemoveAll();

    /// Adds a group at the end of \p parent, or of the top level when it is null. A null name
    /// counts as empty; a group without a name has no title line.
    virtual sInspectorElement* AddGroup(const char* name, sInspectorElement* parent);

    /// Adds a row with one control to a group (or to the top level when \p parent is null), or a
    /// control to a single-line container, where it has no label of its own. The widget is given
    /// the view's content as its parent and is shown.
    ///
    /// \p label and \p request may be null. \p parent must be null or come from AddGroup or
    /// AddSingleLineContainer. The host calls this once for every row that it gave to
    /// CInspectorController::AddItem.
    virtual sInspectorHolder* AddElement(CInspectorDataElement* element,
                                         CInspectorDataWidget* widget, const char* label,
                                         sRequestSize* request, sInspectorElement* parent);

    /// Adds a row for several controls side by side, with one label in front.
    virtual sInspectorElement* AddSingleLineContainer(const char* name, sRequestSize* request,
                                                      sInspectorElement* parent);

    /// Removes every group without rows, bottom-up; rows always stay. Asks for no repaint.
    virtual void RemoveEmptyGroups();

    /// Asks for a repaint.
    virtual void DirtyView();

    /// Stores the size in pixels and lays out anew if it changed. A height of -1 becomes the height
    /// of the content.
    virtual void ResizeInspector(int width, int height);

    /// For the toolkit class: schedule a repaint.
    virtual void UpdateView() = 0;

    /// Lays everything out: rows from top to bottom, then widths, then PositionControl for every
    /// control in the order of the holders' addresses, UpdateView and OnContentHeightSet.
    virtual void RecomputeLayout();

    /// The width pass: label and control widths. Fills the holders and asks the widgets for nothing
    /// but their required widths.
    virtual void ComputeHoldersWidth();
    /// The width pass of preview mode: all controls side by side in one strip.
    virtual void ComputeHoldersWidthForPreview();

    /// For the toolkit class: scroll the widget into sight. Does nothing here.
    virtual void EnsureVisible(CInspectorDataWidget* widget);

    virtual int GetInspectorLeftMargin();   ///< of the whole panel: 5, or 0 in preview mode
    virtual int GetInspectorRightMargin();  ///< of the whole panel: 5, or 0 in preview mode
    virtual int GetInspectorTopMargin();    ///< of the whole panel: 5, or 0 in preview mode
    virtual int GetInspectorBottomMargin(); ///< of the whole panel: 5, or 0 in preview mode
    virtual int GetGroupLeftMargin();       ///< inside a group's frame: 5, or 0 in preview mode
    virtual int GetGroupRightMargin();      ///< inside a group's frame: 5, or 0 in preview mode
    virtual int GetGroupTopMargin();        ///< inside a group's frame: 5, or 0 in preview mode
    virtual int GetGroupBottomMargin();     ///< inside a group's frame: 5, or 0 in preview mode
    /// Height of the title line of a named group: 10, or 0 in preview mode.
    virtual int GetGroupLabelHeight();
    /// The gap below every row and group: 5, or 0 in preview mode.
    virtual int GetHeightBetweenControl();

    /// For the toolkit class: the width of the node's label. 0 here.
    virtual int GetElementLabelWidth(sInspectorElement* element);

    /// The height of the content in pixels after the last layout.
    virtual int GetCurrentContentHeight();

    /// Applies a change of the content-shown flag: hidden controls are resized to 0 by 0, shown
    /// ones are placed again, without the scroll offset.
    virtual void OnToggleShowContent(bool shown);

    /// Called just before the view draws: delivers the controller's notices. The controller must
    /// have been set; one that died since is not missed.
    virtual void OnPreDraw();

    /// For the toolkit class: the content height is known. Does nothing here.
    virtual void OnContentHeightSet();

    /// For the toolkit class: make the widget a child of the panel.
    virtual void ParentControlToInspector(CInspectorDataWidget* widget) = 0;

    /// Applies a holder to its widget: MoveWidget, then ResizeWidget.
    virtual void PositionControl(sInspectorHolder* holder);

    /// Stores the offsets and moves every control to its place minus them.
    virtual void OffsetControls(int dx, int dy);

    /// Stores the controller, which is not owned; null is allowed. The controller's side of the
    /// link is CInspectorController::SetInspectorView.
    void SetController(CInspectorController* controller);

    /// Stores the flag; neither lays out nor repaints.
    void SetPreviewMode(bool on);

    /// The top level of the tree.
    std::list<sInspectorElement>* GetListElements();

    /// Shows or hides the whole content: calls OnToggleShowContent when \p show differs from the
    /// current state or \p force is set. The layout stays as it is.
    void ShowContent(bool show, bool force);

protected:
    /// A new, empty holder that the view owns; it is not yet one of the control holders.
    sInspectorHolder* CreateNewHolder();

    /// The holder of a widget; null when there is none. Of several the one with the lowest address.
    sInspectorHolder* GetHolderFromControl(CInspectorDataWidget* widget);

    /// Lists what the width pass handles below \p parent (null for the top level): a run of sibling
    /// rows as their parent, or a row by itself; in preview mode every node.
    void recBuildListElementToComputeWidth(sInspectorElement* parent,
                                           std::list<sInspectorElement*>& list);
    /// Fills \p list with an entry for each control of the container.
    void BuildPositionHolderListFromContainer(sInspectorElement* container,
                                              std::list<sPositionHolder>& list);
    /// Shares \p available pixels out among the \p growable controls that have room, those with the
    /// least room first, and places all of them; -1 for either means that both are computed.
    void PositionChildrenInContainer(sInspectorElement* container, std::list<sPositionHolder>& list,
                                     int available, int growable);
    /// Stacks the nodes between \p left and \p right from \p y on, which ends below them.
    void recRecomputeLayout(std::list<sInspectorElement>& list, int& left, int& right, int& y);

    std::set<sInspectorHolder*> m_setControlHolders; ///< every holder with a widget
    std::set<sInspectorHolder*> m_setHolders;        ///< every holder; owned
    std::list<sInspectorElement> m_lElements;        ///< the top level of the tree
    CInspectorController* m_pController = nullptr;   ///< not owned
    int m_iInspectorWidth = 0;                       ///< as set by ResizeInspector
    int m_iInspectorHeight = 0;                      ///< as set by ResizeInspector
    int m_iContentHeight = 0;                        ///< of the last layout
    bool m_bAlignLabels = true;                      ///< sibling rows share one label width
    int m_iOffsetX = 0;                              ///< the last offset of OffsetControls
    int m_iOffsetY = 0;                              ///< the last offset of OffsetControls
    bool m_bPreview = false;                         ///< preview mode
    bool m_bContentShown = true;                     ///< false while the controls are hidden

private:
    friend class CInspectorController;
    friend class CInspectorDataWidget;

    sInspectorElement& AddNode(int kind, const char* name, sInspectorElement* parent);
    sInspectorHolder* CreateControlHolder(CInspectorDataElement* element,
                                          CInspectorDataWidget* widget, sRequestSize* request);
    static void CopyRequest(sInspectorHolder* holder, sRequestSize* request);
    static void RemoveEmptyGroups(std::list<sInspectorElement>& nodes);
    void ComputeRowWidth(sInspectorElement& row);
    void ComputeRunWidths(std::list<sInspectorElement>& rows);
    static void PlaceRow(sInspectorElement& row, int labelWidth);

    bool IsControlOrderKnown() const
    {
        return m_bControlOrderKnown && m_vControlOrder.size() == m_setControlHolders.size();
    }
    void UpdateControlOrder();
    template <typename Operation>
    void ForEachControlHolder(Operation operation);
    /// Moves the cursor of the vertical pass.
    void Advance(int& y, int by);

    void IndexHolder(sInspectorHolder* holder);
    void CollectStops(const std::list<sInspectorElement>& nodes);
    void AddStop(sInspectorHolder* holder);
    /// The controls in display order, empty containers included; what editing moves along.
    const std::vector<sInspectorHolder*>& GetStops();
    /// Whether the widget has a place in the view and is alive.
    bool IsShowing(CInspectorDataWidget* widget);
    /// The place of a widget among them: the first or the last, as the walk would meet it; the
    /// number of stops when it has none.
    std::size_t FindStop(CInspectorDataWidget* widget, bool first);
    /// The widget was destroyed or moved to another view: nothing may be called on it any more.
    void ForgetWidget(CInspectorDataWidget* widget);

    /// The holder of each widget; complete while m_ulIndexed equals the number of control holders.
    std::unordered_map<const CInspectorDataWidget*, sInspectorHolder*> m_mapHolders;
    std::size_t m_ulIndexed = 0;
    std::vector<sInspectorHolder*> m_vStops;
    bool m_bStopsKnown = false;
    /// Controllers whose view this is, to be told when it dies.
    std::vector<CInspectorController*> m_vReferrers;
    bool m_bControllerGone = false;
    /// The control holders, as their set had them when it was last looked at.
    std::vector<sInspectorHolder*> m_vControlOrder;
    unsigned long m_ulControlOrder = 0; ///< how often they were looked at
    bool m_bControlOrderKnown = false;

protected:
    /// True while every node has a height and lies between the top and the bottom of its group, as
    /// the last layout stacked them.
    bool m_bStacked = false;
};
