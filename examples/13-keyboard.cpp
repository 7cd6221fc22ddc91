// The keyboard recipe: Tab passes rows that cannot be edited, and a yes-or-no row takes the focus,
// toggles on Space and lets Tab pass on.
#include "support/panelwindow.h"

#include <booldataelement.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <simpledataelement.h>

#include <QKeyEvent>
#include <QPainter>
#include <QPointer>

class CKeyBool : public CQTSimpleBoolWidget
{
public:
    CKeyBool() { setFocusPolicy(Qt::StrongFocus); }
    void StartEditing() override
    {
        activateWindow();
        setFocus(Qt::TabFocusReason);
    }

protected:
    bool focusNextPrevChild(bool next) override
    {
        m_pElement->OnEndEditing(this, next ? CInspectorDataElement::eEndEditNext
                                            : CInspectorDataElement::eEndEditPrevious);
        return true;
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_Space || m_pElement->IsReadOnly())
            return CQTSimpleBoolWidget::keyPressEvent(event);
        m_bValue = !m_bValue;
        const QPointer<CKeyBool> self(this); // the host may remove the row
        GetSafeData()->OnCtrlValueChange();
        if (self)
            update();
    }
    void paintEvent(QPaintEvent* event) override
    {
        CQTSimpleBoolWidget::paintEvent(event);
        if (hasFocus())
            QPainter(this).drawRect(0, 0, 19, 19);
    }
    void focusInEvent(QFocusEvent*) override { update(); }
    void focusOutEvent(QFocusEvent*) override { update(); }
};

class CController : public CPlainController
{
public:
    void GiveFocusToNextElement(CInspectorDataWidget* from) override { Move(from, 1); }
    void GiveFocusToPrevElement(CInspectorDataWidget* from) override
    {
        Move(from, m_lItems.size() - 1);
    }

private:
    /// Goes round the rows, in the order in which they were added, to one that can be edited.
    void Move(CInspectorDataWidget* from, std::size_t step)
    {
        const std::vector<sInspectorControllerData*> rows(m_lItems.begin(), m_lItems.end());
        std::size_t place = 0;
        while (place < rows.size() && rows[place]->m_pWidget != from)
            ++place;
        for (std::size_t tried = 0; tried < rows.size(); ++tried)
        {
            place = (place + step) % rows.size();
            if (rows[place]->m_pElement->IsReadOnly())
                continue;
            m_pView->EnsureVisible(rows[place]->m_pWidget);
            rows[place]->m_pWidget->StartEditing();
            return;
        }
    }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CController controller;
    CPanelWindow window(controller);
    const auto add =
        [&](CInspectorDataElement* element, CInspectorDataWidget* widget, const char* label)
    {
        controller.AddItem(element, widget, nullptr);
        window.m_View.AddElement(element, widget, label, nullptr, nullptr);
    };
    add(new CSimpleDataElement, new CQTSimpleDataWidget, "Name");
    auto* size = new CSimpleDataElement;
    size->SetReadOnly(true);
    add(size, new CQTSimpleDataWidget, "Size (read-only)");
    add(new CBoolDataElement, new CKeyBool, "Visible");
    add(new CSimpleDataElement, new CQTSimpleDataWidget, "Colour");
    controller.ConnectDataElements();
    return Run(application, window);
}
