#pragma once

#include <inspectorcontroller.h>
#include <qtenumdatawidget.h>
#include <qtinspectorview.h>
#include <qtsimpledatawidget.h>
#include <qtsimpletextwidget.h>

#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A host with a panel of three texts (a, b, c), an enumeration (d), a bool (e), a button (f) and a
/// text box (g), and a canvas beside it that owns the keyboard. Delete, Backspace, Ctrl+Z, Space
/// and some letters are its shortcuts. Everything that the host learns is written to one list.
class CHostWindow : public QWidget
{
    Q_OBJECT

public:
    using CCalls = std::vector<std::string>;

    CHostWindow();
    ~CHostWindow() override;

    /// The calls so far, which are forgotten: "a changed 12", "a ended 1", "command run",
    /// "shortcut X", "key F5", "press" for a press that no row and no editor took.
    CCalls TakeCalls();
    void Add(const std::string& call) { m_vCalls.push_back(call); }

    std::string Value(const std::string& row) const;
    QWidget& Row(const std::string& row) const;
    CQTSimpleDataWidget& Field(const std::string& row) const;

    /// Removes all rows; the panel stays.
    void Clear();
    /// Adds all rows, with the values they begin with.
    void Build();

    CQTInspectorView& Panel() { return *m_pView; }
    QScrollBar& ScrollBar();
    QWidget& Canvas() { return *m_pCanvas; }

    /// Marks the panel as changed: the panel is painted soon, and m_OnDelivery runs then.
    void Dirtify();

    /// Runs when an edit of any row has ended, before the panel goes on.
    std::function<void()> m_OnEnd;
    /// Runs when the panel is painted after Dirtify.
    std::function<void()> m_OnDelivery;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private Q_SLOTS:
    void OnShortcut();

private:
    class CController;
    struct sRow;

    template <typename Element, typename Widget>
    Element& AddRow(const char* name, Element* element, Widget* widget);

    CCalls m_vCalls;
    std::vector<sRow> m_vRows;
    QWidget* m_pCanvas;
    CQTInspectorView* m_pView;
    std::unique_ptr<CController> m_pController;
};
