#pragma once

#include "editorplacement.h"

#include <inspectordataelement.h>

#include <QLineEdit>

class IInPlaceEditSink;

/// The line editor that all fields of the process share. It floats over the field that is edited
/// and reports the end of every edit, once, to the sink.
class CInPlaceEdit : public QLineEdit
{
    Q_OBJECT

public:
    CInPlaceEdit();
    ~CInPlaceEdit() override;

    /// The editor of the process, made anew if there is none. CQTSimpleDataWidget frees it.
    static CInPlaceEdit& GetShared();

    /// Ends a running edit and then stores whom to tell about the next one; not owned.
    void SetSink(IInPlaceEditSink* sink);
    /// The sink is dying: an edit for it stays open and is reported to nobody.
    void ForgetSink(const IInPlaceEditSink* sink);

    /// Ends a running edit and then sets the text of the next one.
    void SetStartText(const char* text);

    /// Ends a running edit because another is to start. Returns false from inside such an end: what
    /// the host asks for there gives way to what it asked for before.
    bool MakeRoom();

    /// Opens the editor over an area of the owner, in the owner's coordinates.
    void StartEditing(QWidget& owner, const QRect& area);

    /// Ends a running edit with the cause that was stored last.
    void EndEditing();

    /// Closes the editor without any report.
    void HideSilently();

    /// Deletes the editor, at once or, when it is in use, as soon as the event is over.
    void Dispose();

protected:
    bool event(QEvent* event) override;

private Q_SLOTS:
    void OnFinishEditing();

private:
    bool EndWith(CInspectorDataElement::eEndEditCause cause);
    bool LoseFocus(QFocusEvent& event);
    void CommitComposition();

    QString m_sStart;
    QString m_sCurrent;
    IInPlaceEditSink* m_pSink = nullptr;
    bool m_bEditing = false;
    bool m_bMakingRoom = false;
    unsigned m_uiEdit = 0; ///< which edit the editor was shown for last
    int m_iCause = CInspectorDataElement::eEndEditFocusLost;
    QString m_sComposition; ///< what an input method is still composing
    int m_iInUse = 0;
    CEditorPlacement m_Placement;
};
