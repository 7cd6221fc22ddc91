#pragma once

#include "doubles.h"
#include "random.h"

#include <QObject>

#include <array>
#include <memory>
#include <string>
#include <vector>

/// A host and a user at random over two live panels that share the editors.
///
/// Every step is one operation of the host or one event of the user; the host's hooks do further
/// operations of the host while the library is on the stack. After every step the books must
/// balance.
class CMonkey : public QObject, private CHookSink
{
public:
    explicit CMonkey(unsigned seed);
    ~CMonkey() override;

    void Step();
    /// What was done, in one line.
    std::string Describe() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using CNode = CInspectorView::sInspectorElement;

    struct sPanel
    {
        QWidget m_window;
        CMonkeyController* m_pController = nullptr;
        CMonkeyView* m_pView = nullptr;
    };

    void OnHook() override;
    bool Coin() override { return m_random.OneIn(2); }

    // The host (monkeyhost.cpp)
    void DoHostOperation();
    void ChangeRows(sPanel& panel);
    void ChangeTree(sPanel& panel);
    void ChangeValues(sPanel& panel);
    void Dirtify(sPanel& panel);
    void ChangeLayout(sPanel& panel);
    void MoveEditing(sPanel& panel);
    void RunEvents();
    void Restore(sPanel& panel);
    void DropController(sPanel& panel);
    void DropView(sPanel& panel);

    // The rows (monkeyrows.cpp)
    void AddRow(sPanel& panel);
    void FillPanel(sPanel& panel);
    void RebuildTree(sPanel& panel);
    CInspectorDataElement* RandomElement(const CMonkeyController& controller);
    CMonkeyController::CRecord* RandomRecord(const CMonkeyController& controller);
    CInspectorDataWidget* RandomControl(const CMonkeyController& controller);
    CNode* RandomParent(CMonkeyView& view);
    void Place(CMonkeyView& view, CMonkeyController::CRecord& record);
    CInspectorView::sRequestSize* RandomRequest();
    const char* RandomText();
    int RandomSize();
    void ChangeDefinition(CEnumDataElement& element);

    // The user (monkeyuser.cpp)
    void DoUserEvent();
    void Press(QWidget* target);
    void Type();
    void Wheel();
    void MoveFocus();
    void LeaveWindow();
    void UseList();
    void Compose();
    QWidget* RandomTarget();
    void Paint();

    // The books (monkeybooks.cpp)
    void Check();
    void CheckPanel(const sPanel& panel);
    void CheckEditing(const sEditing& editing, const char* name);
    void TakeLateNotices();
    void WatchEditors();

    CRandom m_random;
    std::array<sPanel, 2> m_aPanels;
    CEnumDataElement::sEnumDefinition m_sharedDefinition;
    CInspectorView::sRequestSize m_request;
    int m_iDepth = 0; ///< hooks on the stack
    int m_iInEvents = 0;
    long m_lSteps = 0;
};
