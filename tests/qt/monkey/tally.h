#pragma once

#include <QPointer>
#include <QWidget>

#include <set>
#include <vector>

class CInspectorDataWidget;
class CMonkeyNotice;

/// What is alive, and which edit is under way, as the host's own objects count it.
struct sTally
{
    int m_iElements = 0;
    int m_iPayloads = 0;
    std::set<const CInspectorDataWidget*> m_setWidgets;
    int m_iFields = 0; ///< of the widgets: those that use the line editor
    int m_iLists = 0;  ///< of the widgets: those that use the list
    std::set<CMonkeyNotice*> m_setNotices;

    long m_lHooks = 0;
    long m_lHookActions = 0;
    long m_lReports = 0;
    long m_lDeliveries = 0;
};

/// One of the two shared editors, as the host sees it from outside: a control asks for it, it comes
/// up, and its end is reported to that control once.
struct sEditing
{
    std::vector<QWidget*> m_vStarting; ///< whose starts are on the stack
    QWidget* m_pOpen = nullptr;        ///< for whom the editor came up and has not reported yet
    QPointer<QWidget> m_pEditor;
};
