#include "editorplacement.h"

#include <QWidget>

void ShowEditor(QWidget& editor, QWidget&, const QRect& rect)
{
    editor.setGeometry(rect);
    editor.setWindowFlags(Qt::ToolTip);
    editor.show();
    editor.activateWindow();
}
