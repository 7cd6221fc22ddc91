#pragma once

#include <inplaceeditsink.h>
#include <inspectordatawidget.h>
#include <simpledataprovider.h>

#include <QString>
#include <QWidget>

#include <memory>
#include <string>

class CEnumDataElement;
class CInPlaceList;

/// A closed combo box for a CEnumDataElement. A left click drops down the list that all
/// enumerations of the process share.
class INSPECTOR_EXPORT CQTEnumDataWidget : public QWidget,
                                           public CInspectorDataWidget,
                                           public ISimpleDataProvider,
                                           public IInPlaceEditSink
{
    Q_OBJECT

public:
    CQTEnumDataWidget();
    ~CQTEnumDataWidget() override;

    /// Takes the element's value without a repaint.
    void InitFromElement() override;
    const char* GetType() override; ///< "qt.simple.enum"
    /// Takes the element's value, if it has any.
    void OnValueChange(sValueChangeInfo* info) override;
    int GetRequiredWidth() override;           ///< -1
    int GetRequiredHeight(int width) override; ///< 20
    void ResizeWidget(int width, int height) override;
    void MoveWidget(int x, int y) override;
    void Show() override;
    void Hide() override;

    /// The value (not its display text), up to its first zero byte.
    void GetDataAsString(std::string& out) override;

    /// Takes the value and hands it on: the element's OnCtrlValueChange, then its OnEndEditing. An
    /// element must be bound; it and this widget may be gone when this returns.
    void FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause) override;

    /// The order of the list from the next drop-down on: 0 by value, 1 by display text, both byte
    /// by byte; 3 by the value read as a decimal number; any other as the definition has it. Starts
    /// as 2.
    void SetEnumSortingMethod(int method);

    static std::shared_ptr<CInPlaceList> g_pInPlaceList; ///< the shared list

protected:
    /// Draws the combo box and the display text of the value.
    void paintEvent(QPaintEvent* event) override;
    /// Drops the list down for a left press, also for a read-only element.
    void mousePressEvent(QMouseEvent* event) override;

    /// The bound element; null when there is none or it is of another type.
    CEnumDataElement* GetSafeEnumData();
    /// The bound element as a provider of text; null when it is none.
    ISimpleDataProvider* GetSafeControlDataProvider();

    /// The value as shown (not its display text).
    QString m_sText;
    /// The order of the list.
    int m_iSortingMethod = 2;
    /// The shared list, which lives as long as any widget holds it.
    std::shared_ptr<CInPlaceList> m_pInPlaceList;

private:
    void TakeElementText();
};
