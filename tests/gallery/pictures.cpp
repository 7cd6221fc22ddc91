#include "pictures.h"

#include "layoutpictures.h"
#include "openeditors.h"
#include "samplepanel.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace
{

using sNode = CSamplePanel::sNode;
using sRequest = CSamplePanel::sRequest;

QPalette LightPalette()
{
    return QApplication::style()->standardPalette();
}

QPalette DarkPalette()
{
    QPalette palette(QColor(60, 63, 68), QColor(43, 45, 48));
    palette.setColor(QPalette::WindowText, QColor(214, 216, 220));
    palette.setColor(QPalette::Base, QColor(58, 61, 66));
    palette.setColor(QPalette::Text, QColor(226, 228, 232));
    palette.setColor(QPalette::ButtonText, QColor(226, 228, 232));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(120, 123, 128));
    return palette;
}

/// Draws with a palette and puts the light one back.
QImage DrawIn(const QPalette& palette, const std::function<QImage()>& draw)
{
    QApplication::setPalette(palette);
    QImage image = draw();
    QApplication::setPalette(LightPalette());
    return image;
}

QImage Controls(qreal scale)
{
    CSamplePanel panel;
    sNode* text = panel.Group("Text");
    panel.Text("Name", "Checkerboard", text);
    panel.Text("Empty", "", text);
    panel.Text("Too long to be seen", "A value that runs out of the field at its right edge", text);
    panel.TextBox("Notes", "Several lines,\nwritten in place.", text);
    sNode* yesNo = panel.Group("Yes or no");
    panel.Bool("Off", false, yesNo);
    panel.Bool("On", true, yesNo);
    sNode* choice = panel.Group("Choice");
    panel.Enum("Blend mode", "multiply", choice);
    panel.Enum("Unknown", "dissolve", choice);
    panel.Enum("Empty", "", choice);
    sNode* button = panel.Group("Button");
    panel.Button("Enabled", "Render", true, button);
    panel.Button("Disabled", "Cancel", false, button);
    panel.Button("Too long", "A caption that is wider than the room it is given", true, button);
    sNode* fixed = panel.Group("Static text");
    panel.Static("Left", "256 by 256 pixels", Qt::AlignLeft | Qt::AlignVCenter, fixed);
    panel.Static("Centre", "256 by 256 pixels", Qt::AlignCenter, fixed);
    panel.Static("Right", "256 by 256 pixels", Qt::AlignRight | Qt::AlignVCenter, fixed);
    panel.m_View.ResizeInspector(320, -1);
    return panel.Draw(scale);
}

QImage ReadOnly()
{
    CSamplePanel panel;
    sNode* group = panel.Group("Read-only");
    for (CInspectorDataElement* element :
         {&panel.Text("Text", "Checkerboard", group), &panel.Bool("Yes or no", true, group),
          &panel.Enum("Choice", "multiply", group),
          &panel.TextBox("Notes",
                         "More lines\nthan the box\nhas room for,\nso that it\nhas a scroll "
                         "bar\nat its\nright edge.",
                         group)})
        element->SetReadOnly(true);
    panel.m_View.ResizeInspector(320, -1);
    return panel.Draw();
}

QImage Groups(int height)
{
    CSamplePanel panel;
    sNode* outer = panel.Group("Transform");
    panel.Text("Pivot", "Centre", outer);
    sNode* inner = panel.Group("Scale", outer);
    panel.Text("Horizontal", "1.25", inner);
    panel.Text("Vertical", "1.25", inner);
    sNode* unnamed = panel.Group("", outer);
    panel.Bool("Keep the proportions", true, unnamed);
    sNode* alone = panel.Group("Alone keeps its own label");
    panel.Text("Hue", "0.5", alone);
    panel.m_View.ResizeInspector(320, height);
    return panel.Draw();
}

QImage Containers(int width)
{
    CSamplePanel panel;
    sNode* group = panel.Group("Single-line containers");
    sNode* colour = panel.Container("Colour", group);
    for (const char* value : {"0.2", "0.4", "0.6", "1"})
        panel.Text(nullptr, value, colour);
    sRequest narrow;
    narrow.SetMinValueAbsolute(70);
    narrow.SetMaxValueAbsolute(70);
    sNode* file = panel.Container("File", group);
    panel.Text(nullptr, "/pictures/wall.png", file);
    panel.Button(nullptr, "Browse\xE2\x80\xA6", true, file, &narrow);
    sRequest third;
    third.SetMaxValueRelative(33);
    sRequest noLabel;
    noLabel.SetOptions(CInspectorView::eRequestOptionNoLabel);
    panel.Text("No label", "This row has no label column", group, &noLabel);
    sNode* alone = panel.Group("A row of its own");
    panel.Text("At most a third", "12", alone, &third);
    panel.m_View.ResizeInspector(width, -1);
    return panel.Draw();
}

QImage Preview(int width)
{
    CSamplePanel panel;
    sNode* group = panel.Group("Blur");
    panel.Text("Size", "12", group);
    panel.Bool("Clip", true, group);
    panel.Enum("Mode", "screen", group);
    panel.m_Controller.SetPreviewMode(true);
    panel.m_View.ResizeInspector(width, 20);
    return panel.Draw();
}

QImage GettingStarted()
{
    CSamplePanel panel;
    sNode* group = panel.Group("Circle");
    panel.Text("Radius", "12.5", group);
    panel.Text("Centre", "0, 0", group);
    panel.Bool("Filled", true, group);
    panel.m_View.ResizeInspector(300, -1);
    return panel.Draw();
}

QImage Message()
{
    CSamplePanel panel;
    panel.m_View.SetPreviewMessage("This operation has no parameters", QColor(176, 74, 24));
    panel.m_View.ResizeInspector(320, 24);
    return panel.Draw();
}

} // namespace

void PrepareGallery()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    font.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(font);
    QApplication::setPalette(LightPalette());
    // An open editor is drawn with the panel that it floats in, and its cursor stands still.
    qputenv("INSPECTOR_EDITOR", "child");
    QApplication::setCursorFlashTime(0);
}

std::vector<sPicture> GalleryPictures()
{
    return {
        {QStringLiteral("getting-started"), GettingStarted},
        {QStringLiteral("editor-open"), DrawOpenEditor},
        {QStringLiteral("editor-open-dark"), [] { return DrawIn(DarkPalette(), DrawOpenEditor); }},
        {QStringLiteral("list-open"), DrawOpenList},
        {QStringLiteral("list-open-dark"), [] { return DrawIn(DarkPalette(), DrawOpenList); }},
        {QStringLiteral("layout-group"), DrawGroupWithNumbers},
        {QStringLiteral("layout-container"), DrawContainerWithNumbers},
        {QStringLiteral("controls"), [] { return Controls(1); }},
        {QStringLiteral("controls-dark"),
         [] { return DrawIn(DarkPalette(), [] { return Controls(1); }); }},
        {QStringLiteral("controls-scale-2"), [] { return Controls(2); }},
        {QStringLiteral("read-only"), ReadOnly},
        {QStringLiteral("groups"), [] { return Groups(-1); }},
        {QStringLiteral("groups-dark"),
         [] { return DrawIn(DarkPalette(), [] { return Groups(-1); }); }},
        {QStringLiteral("scroll-bar"), [] { return Groups(140); }},
        {QStringLiteral("containers-220"), [] { return Containers(220); }},
        {QStringLiteral("containers-320"), [] { return Containers(320); }},
        {QStringLiteral("containers-480"), [] { return Containers(480); }},
        {QStringLiteral("preview-wide"), [] { return Preview(480); }},
        {QStringLiteral("preview-narrow"), [] { return Preview(140); }},
        {QStringLiteral("preview-message"), [] { return Message(); }},
    };
}
