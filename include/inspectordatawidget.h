#pragma once

#include <inspectorexport.h>

#include <cstdint>

class CInspectorController;
class CInspectorDataElement;
class CInspectorView;

/// The screen side of one row: a control that shows an element's value and lets the user edit it.
///
/// The layout engine drives the operations from GetRequiredWidth to Hide, the controller drives
/// SetDataElement, InitFromElement and StartEditing, and the element drives OnValueChange. All
/// sizes and positions are pixels in the coordinates of the panel's content.
class INSPECTOR_EXPORT CInspectorDataWidget
{
public:
    /// A notice that a value changed. The host makes it and gives the code its meaning.
    struct INSPECTOR_EXPORT sValueChangeInfo
    {
        virtual ~sValueChangeInfo();

        /// Copied and never looked at by the library.
        std::int32_t m_iCode = 0;
    };

    /// A notice that the structure of the data changed. The host makes it, as above.
    struct INSPECTOR_EXPORT sTopoChangeInfo
    {
        virtual ~sTopoChangeInfo();

        /// Copied and never looked at by the library.
        std::int32_t m_iCode = 0;
    };

    CInspectorDataWidget();
    /// A copy shows the same element; it belongs to no row.
    CInspectorDataWidget(const CInspectorDataWidget& other);
    /// Shows the other widget's element from now on; the row it belongs to stays its own.
    CInspectorDataWidget& operator=(const CInspectorDataWidget& other);
    virtual ~CInspectorDataWidget();

    /// Binds the widget to the element it shows, which it does not own.
    virtual void SetDataElement(CInspectorDataElement* element);

    /// Reads the element's current state into the widget.
    virtual void InitFromElement() = 0;

    /// The type string of the widget, a constant such as "qt.simple.edit".
    virtual const char* GetType() = 0;

    /// For widgets that have an editor: open it. Tab and Shift+Tab arrive here. Does nothing here,
    /// so Tab ends at such a widget.
    virtual void StartEditing();

    /// For the widget: read the element again and repaint. \p info may be null. Does nothing here,
    /// nor in buttons and static texts, which read their elements when they are painted.
    virtual void OnValueChange(sValueChangeInfo* info);
    /// For widgets of the host that show structure; empty here. \p info may be null.
    virtual void OnTopoChange(sTopoChangeInfo* info);

    /// The preferred width in pixels; -1 when the widget takes what the layout gives.
    virtual int GetRequiredWidth() = 0;
    /// The preferred height in pixels in a row of the given width.
    virtual int GetRequiredHeight(int width) = 0;

    /// Takes the size that the layout gives, in pixels; 0 by 0 while the content is hidden.
    virtual void ResizeWidget(int width, int height) = 0;
    /// Takes the place that the layout gives, in pixels of the content.
    virtual void MoveWidget(int x, int y) = 0;
    /// Makes the control visible; called once when it is placed in a view.
    virtual void Show() = 0;
    /// Makes the control invisible; for hosts, the library does not call it.
    virtual void Hide() = 0;

protected:
    /// Takes the widget out of its row, whose element goes on without it, and out of its place in
    /// the view. The destructor does it; one that calls the host on its way does it first.
    void LeaveRow();

    /// The element that is shown; null until the widget is bound and once the element is destroyed.
    CInspectorDataElement* m_pElement = nullptr;

private:
    friend class CInspectorController;
    friend class CInspectorView;
    friend class CQTInspectorView;

    // Where the widget is registered and placed, so that one which its toolkit parent destroys
    // is neither destroyed a second time nor laid out again.
    CInspectorController* m_pOwner = nullptr;
    CInspectorView* m_pView = nullptr;
    // What the toolkit reads first when it places the widget, to be fetched ahead; may be null.
    const void* m_apFetched[2] = {};
};
