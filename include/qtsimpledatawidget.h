#pragma once

#include <inplaceeditsink.h>
#include <inspectordatawidget.h>
#include <simpledataprovider.h>

#include <QString>
#include <QWidget>

#include <string>

class CInPlaceEdit;
class CSimpleDataElement;

/// A one-line field for a CSimpleDataElement. It paints its text itself; a left click opens the
/// line editor that all fields of the process share.
class INSPECTOR_EXPORT CQTSimpleDataWidget : public QWidget,
                                             public CInspectorDataWidget,
                                             public ISimpleDataProvider,
                                             public IInPlaceEditSink
{
    Q_OBJECT

public:
    CQTSimpleDataWidget();
    ~CQTSimpleDataWidget() override;

    void InitFromElement() override;
    const char* GetType() override; ///< "qt.simple.edit"

    /// Opens the line editor over the field; for a read-only element it opens for reading only.
    /// Without an element nothing opens. An edit of another field ends first.
    void StartEditing() override;

    /// Takes the element's text, if it has any.
    void OnValueChange(sValueChangeInfo* info) override;
    int GetRequiredWidth() override;           ///< -1
    int GetRequiredHeight(int width) override; ///< 20
    void ResizeWidget(int width, int height) override;
    void MoveWidget(int x, int y) override;
    void Show() override;
    void Hide() override;

    /// The text as shown, up to its first zero byte.
    void GetDataAsString(std::string& out) override;

    /// Takes the text and hands it on: the element's OnCtrlValueChange, then its OnEndEditing. An
    /// element must be bound; it and this widget may be gone when this returns.
    void FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause) override;

    static CInPlaceEdit* g_pInPlace; ///< the shared editor; null while there is no field
    static int g_iInPlaceRefCount;   ///< the number of fields

protected:
    /// Draws the text on the palette's base colour.
    void paintEvent(QPaintEvent* event) override;
    /// Calls StartEditing for a left press, unless the element is read-only.
    void mousePressEvent(QMouseEvent* event) override;
    /// As any widget does.
    void showEvent(QShowEvent* event) override;
    /// As any widget does; an open editor stays open.
    void hideEvent(QHideEvent* event) override;

    /// The bound element; null when there is none or it is of another type.
    CSimpleDataElement* GetSafeSimpleData();
    /// The bound element as a provider of text; null when it is none.
    ISimpleDataProvider* GetSafeControlDataProvider();

    /// The text as shown.
    QString m_sText;
};
