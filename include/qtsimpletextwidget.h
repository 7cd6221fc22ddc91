#pragma once

#include <inspectordatawidget.h>
#include <simpledataprovider.h>

#include <QTextEdit>

#include <string>

class CFocusMove;
class CSimpleDataElement;

/// A text box of several lines for a CSimpleDataElement. It can always be typed into; the text
/// reaches the element when the box loses the focus.
class INSPECTOR_EXPORT CQTSimpleTextWidget : public QTextEdit,
                                             public CInspectorDataWidget,
                                             public ISimpleDataProvider
{
    Q_OBJECT

public:
    CQTSimpleTextWidget();
    ~CQTSimpleTextWidget() override;

    void InitFromElement() override;
    const char* GetType() override; ///< "qt.simple.text"
    /// Takes the element's text. An element must be bound.
    void OnValueChange(sValueChangeInfo* info) override;
    int GetRequiredWidth() override;           ///< 20
    int GetRequiredHeight(int width) override; ///< 100
    void ResizeWidget(int width, int height) override;
    void MoveWidget(int x, int y) override;
    void Show() override;
    void Hide() override;

    /// The plain text of the box, up to its first zero byte. A text that the box cannot show as it
    /// is (markup, no-break spaces) comes back unchanged as long as nobody changed it.
    void GetDataAsString(std::string& out) override;

protected:
    /// Hands the text to the element.
    void focusOutEvent(QFocusEvent* event) override;

    /// The bound element; null when there is none or it is of another type.
    CSimpleDataElement* GetSafeData();

private:
    friend class CFocusMove;

    /// The last text that the box could not show as it is, and what it shows instead.
    std::string m_sOriginal;
    QString m_sShown;
    /// The box outlives its row because the toolkit is at work on it: nobody is told anything.
    bool m_bRowGone = false;
    /// The text has a word so long that the toolkit is told to break words anywhere.
    bool m_bBreaksAnywhere = false;
};
