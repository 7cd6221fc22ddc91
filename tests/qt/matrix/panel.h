#pragma once

#include <qt/matrix/lives.h>
#include <support/calllog.h>

#include <inspectorcontroller.h>
#include <qtinspectorview.h>

#include <QWidget>

#include <map>
#include <memory>
#include <string>

/// What the host destroys.
enum class eDeath
{
    ThisRow,
    Neighbour,
    AllRows,
    Rebuild,
    View,
    Controller,
};

/// Where the library calls the host, which destroys it there.
enum class eHook
{
    InternalValueChanged,
    OnCtrlValueChange,
    OnEndEditing,
    CallCommand,
    HandleDirtyItem,
    HandleControllerDirt,
    EnsureVisible,
    OnContentHeightSet,
    None,
};

/// What is edited when that happens.
enum class eSubject
{
    LineEditor,
    List,
    Bool,
    Button,
    TextBox,
};

/// A panel of the rows "prev", "subject", "next" and "last" whose host destroys something in one of
/// its hooks. "subject" is of the kind that is tested, the other rows are fields.
class CMatrixPanel
{
public:
    explicit CMatrixPanel(eSubject subject);
    ~CMatrixPanel();

    /// The next call of \p hook for the subject destroys something.
    void Arm(eHook hook, eDeath death);
    bool HasStruck() const { return m_bStruck; }

    /// Fills the panel anew, with a new view and a new controller where they are gone.
    void Restore();

    QWidget* Widget(const std::string& row) const;
    CInspectorDataElement* Element(const std::string& row) const;
    bool HasRow(const std::string& row) const;
    std::string Value(const std::string& row) const;

    /// Queues notices and has them delivered, which calls HandleDirtyItem or HandleControllerDirt.
    void Deliver();

    // What the doubles tell.
    void At(eHook hook);
    void OnValueChanged();
    void OnPressed(CInspectorDataWidget* widget);
    eHook Armed() const { return m_eHook; }
    bool IsSubject(const std::string& row) const { return row == "subject"; }

    CCallLog m_log;
    CLives m_lives;
    std::unique_ptr<CQTInspectorView> m_pView;
    std::unique_ptr<CInspectorController> m_pController;

private:
    struct sRow
    {
        CInspectorDataElement* m_pElement;
        QWidget* m_pWidget;
        int m_iElementLife;
        int m_iWidgetLife;
    };

    void Destroy();
    void Fill();
    template <typename Model, typename Control>
    void AddRow(const std::string& name, Model* element, Control* widget);
    void AddField(const std::string& name);
    void AddSubject();

    const eSubject m_eSubject;
    eHook m_eHook = eHook::None;
    eDeath m_eDeath = eDeath::ThisRow;
    bool m_bStruck = false;
    QWidget m_window;
    std::map<std::string, sRow> m_mapRows;
};
