#pragma once

#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <qtstaticwidget.h>

/// A static text that is broken into as many lines as its width asks for.
class CWrappedTextWidget : public CQTStaticWidget
{
    Q_OBJECT

public:
    int GetRequiredHeight(int width) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString Text();
};

/// A field that hands on what was typed, and nothing else: a value that changed behind the open
/// editor stays when the user leaves the editor as it was.
class CFieldWidget : public CQTSimpleDataWidget
{
    Q_OBJECT

public:
    void StartEditing() override;
    void FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause) override;

private:
    std::string m_sStart; ///< the text that the editor was opened with
};

/// A yes or no with a dash for the nodes of a CBoolPropertyElement that differ.
class CMixedBoolWidget : public CQTSimpleBoolWidget
{
    Q_OBJECT

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// Paints the colours of a CSwatchElement side by side; a click lets the user pick another.
class CSwatchWidget : public CQTStaticWidget
{
    Q_OBJECT

public:
    void OnValueChange(sValueChangeInfo* info) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};
