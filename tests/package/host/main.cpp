// A host like any other: it knows the installed headers only. It opens a panel, edits a value, and
// says what went wrong, if anything did.
#include "elements.h"
#include "panel.h"
#include "widgets.h"

#include <inspectorversion.h>
#include <qttextencoding.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>

#include <cstdio>
#include <cstring>

namespace
{
int g_iFailures = 0;

void Check(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "failed: %s\n", what);
    ++g_iFailures;
}

void Click(QWidget& widget)
{
    const QPointF at(10, 10);
    QMouseEvent press(QEvent::MouseButtonPress, at, widget.mapToGlobal(at.toPoint()),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &press);
}

QLineEdit* OpenEditor()
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets)
        if (auto* edit = qobject_cast<QLineEdit*>(widget); edit && edit->isVisible())
            return edit;
    return nullptr;
}

template <class Element, class Widget>
Element* AddRow(HostController& controller, HostView& view, const char* label, Widget* widget)
{
    auto* element = new Element;
    controller.AddItem(element, widget, new HostPayload);
    // The view keeps plain copies of the requests it is given; a derived one is stored, and owned.
    view.AddElement(element, widget, label, nullptr, nullptr)->m_pRequest = new HostRequest;
    return element;
}
} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingUtf8);
    Check(std::strcmp(INSPECTOR_VERSION_STRING, HOST_EXPECTED_VERSION) == 0, "version header");

    HostView view;
    HostController controller;
    controller.SetInspectorView(&view);
    view.SetController(&controller);

    auto* field = new HostField;
    auto* check = new HostCheck;
    auto* text = AddRow<HostText>(controller, view, "Text", field);
    auto* flag = AddRow<HostBool>(controller, view, "Flag", check);
    AddRow<HostText>(controller, view, "Lines", new HostTextBox);
    AddRow<HostEnum>(controller, view, "Choice", new HostChoice);
    auto* button = AddRow<HostButton>(controller, view, nullptr, new HostPushButton);
    AddRow<HostNote>(controller, view, nullptr, new HostLabel);
    AddRow<HostElement>(controller, view, "Swatch", new HostSwatch);
    controller.ConnectDataElements();
    view.ResizeInspector(320, -1);
    view.show();
    QApplication::processEvents();
    Check(field->width() == 145, "the derived request halves the row");

    text->SetStrCurrentValue("before");
    controller.DirtifyItem(controller.FirstRow(), new HostNotice);
    view.grab();
    Check(controller.m_iDelivered == 1, "one notice is delivered by one drawing");

    Click(*field);
    QLineEdit* edit = OpenEditor();
    Check(edit && edit->text() == QLatin1String("before"), "the editor opens with the text");
    if (edit)
    {
        edit->setText(QLatin1String("42"));
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(edit, &enter);
    }
    Check(text->GetStrCurrentValue() == "42" && text->m_iChanges == 1, "the edit arrives");

    Click(*check);
    Check(flag->GetValue() && flag->m_iChanges == 1, "the click arrives");
    button->OnCtrlValueChange(nullptr);
    Check(controller.m_sCommand == "reset" && controller.m_ulValue == 7, "the command arrives");

    HostEngine engine;
    engine.ResizeInspector(100, -1);
    Check(engine.GetCurrentContentHeight() == 10, "the engine works without a toolkit");

    HostValueNotice value;
    HostTopoNotice topo;
    text->UpdateData();
    field->OnValueChange(&value);
    field->OnTopoChange(&topo);
    controller.ClearAllData();
    if (g_iFailures == 0)
        std::puts("the host works");
    return g_iFailures == 0 ? 0 : 1;
}
