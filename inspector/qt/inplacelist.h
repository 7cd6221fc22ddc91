#pragma once

#include "editorplacement.h"

#include <inspectordataelement.h>

#include <QListWidget>

#include <memory>

class IInPlaceEditSink;

/// The drop-down list that all enumerations of the process share. It reports the end of every
/// choice, once, to the sink, and closes only after that.
class CInPlaceList : public QListWidget
{
    Q_OBJECT

public:
    CInPlaceList();

    /// A list that is deleted with its last pointer, or, when it is in use then, as soon as the
    /// event is over.
    static std::shared_ptr<CInPlaceList> Create();

    /// Ends an open choice and then stores whom to tell about the next one; not owned.
    void SetSink(IInPlaceEditSink* sink);

    /// Ends an open choice because another is to start. Returns false from inside such an end: what
    /// the host asks for there gives way to what it asked for before.
    bool MakeRoom();

    /// Forgets all entries and the choice, without a report.
    void Reset();

    /// Appends an entry; does nothing when either text is null.
    void AddEntry(const char* value, const char* label);

    /// Drops the list down below the owner's area, in the owner's coordinates, with \p value
    /// chosen.
    void Start(QWidget& owner, const QRect& area, const char* value);

    /// True while there is a choice that can still be ended.
    bool IsOpen() const { return m_bOpen && m_uiEnding != m_uiChoice; }

    /// Reports an open choice and closes the list.
    void EndChoice();

protected:
    bool event(QEvent* event) override;

private Q_SLOTS:
    void OnItemClicked(QListWidgetItem* item);

private:
    static void Dispose(CInPlaceList* list);
    bool CancelWith(CInspectorDataElement::eEndEditCause cause);
    void SelectRowOf(const QString& value);
    int WantedHeight() const;

    QString m_sStart;
    QString m_sCurrent;
    IInPlaceEditSink* m_pSink = nullptr;
    bool m_bOpen = false;
    bool m_bMakingRoom = false;
    int m_iCause = CInspectorDataElement::eEndEditFocusLost;
    unsigned m_uiChoice = 1; ///< which choice the list is open for
    unsigned m_uiEnding = 0; ///< which choice is being reported; 0 for none
    int m_iInUse = 0;
    CEditorPlacement m_Placement;
};
