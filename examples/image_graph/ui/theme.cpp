#include "theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

void ApplyTheme(QApplication& application)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QColor window(53, 55, 58);
    const QColor base(38, 40, 43);
    const QColor text(222, 222, 220);
    const QColor faint(140, 142, 145);
    const QColor accent(66, 125, 180);
    QPalette palette(text, QColor(66, 69, 73), QColor(96, 100, 105), QColor(30, 31, 33),
                     QColor(80, 83, 87), text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, QColor(44, 46, 49));
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    application.setPalette(palette);
}
