#pragma once

#include <inspectorexport.h>

class CInspectorController;
class CInspectorDataWidget;

/// The model side of one row: a value, its read-only state and the rules for changing it.
///
/// Hosts derive from the concrete elements (or from this class) and override the hooks. An element
/// never owns its widget or its controller; once it was given to CInspectorController::AddItem, the
/// controller owns it. Everything runs on the user-interface thread.
class INSPECTOR_EXPORT CInspectorDataElement
{
public:
    /// Why an in-place edit ended.
    enum eEndEditCause : int
    {
        eEndEditCancel = 0,    ///< Escape: the start value was restored
        eEndEditValidate = 1,  ///< Return or Enter
        eEndEditNext = 2,      ///< Tab: editing moves to the next control
        eEndEditPrevious = 3,  ///< Shift+Tab: editing moves to the previous control
        eEndEditFocusLost = 4, ///< the editor was left; a clicked entry of a list reports it too
    };

    CInspectorDataElement();
    /// A copy shares the widget and the controller of its source.
    CInspectorDataElement(const CInspectorDataElement& other);
    /// Shares the widget and the controller of the other element from now on.
    CInspectorDataElement& operator=(const CInspectorDataElement& other);
    virtual ~CInspectorDataElement();

    /// The type string of the element, a constant such as "qt.simple.data".
    virtual const char* GetType() = 0;

    /// Binds the element to its widget and its controller (CInspectorController::AddItem calls it).
    virtual void SetDataControl(CInspectorDataWidget* widget, CInspectorController* controller);

    /// Called by \p widget when it was activated as a whole, as a button is when it is pressed.
    virtual void OnCtrlValueChange(CInspectorDataWidget* widget);

    /// Called once at the end of every in-place edit, after the value was taken.
    ///
    /// Moves editing to the next or previous control for the causes eEndEditNext and
    /// eEndEditPrevious; an override calls this version for them, or Tab stops at its row. The hook
    /// may remove this row, rebuild the panel or start another edit, as long as it does not touch
    /// this element afterwards. The element must be bound.
    virtual void OnEndEditing(CInspectorDataWidget* widget, eEndEditCause cause);

    /// For elements of the host that ignore changes of their data for a while; empty here.
    virtual void Mute();
    /// Ends what Mute began; empty here.
    virtual void Unmute();

    /// Attaches the element to the data it shows. CInspectorController::ConnectDataElements calls
    /// it.
    virtual void Connect();
    /// Detaches the element from its data. CInspectorController calls it before it destroys the
    /// row; it must not add, remove or clear rows.
    virtual void Disconnect();

    /// Makes the widget read the element again (OnValueChange with a null notice). Buttons and
    /// static texts are shown anew by a repaint of their widgets instead. The element must be
    /// bound.
    virtual void UpdateData();

    /// Whether the user may not change the value.
    virtual bool IsReadOnly();
    /// Stores the flag; the widget looks at it the next time it needs it.
    virtual void SetReadOnly(bool readOnly);

protected:
    /// The hook of the host: the user changed the value, which is already stored.
    ///
    /// It may remove this or any other row or rebuild the panel, as long as it does not touch this
    /// element afterwards.
    virtual void InternalValueChanged();

    /// The user may not change the value.
    bool m_bReadOnly = false;
    /// The widget that shows the element; null until it is bound, and when the widget died first.
    CInspectorDataWidget* m_pWidget = nullptr;
    /// The controller that owns the row; null until the element is bound.
    CInspectorController* m_pController = nullptr;

private:
    friend class CInspectorController;
};
