#include <qtsimpletextwidget.h>

#include <simpledataelement.h>

#include "focusmove.h"
#include "layoutoperations.h"
#include "text.h"

#include <QPointer>
#include <QTextOption>

#include <algorithm>
#include <cassert>
#include <utility>

namespace
{

/// The toolkit takes four times as long to break a word that is twice as long, minutes for a
/// megabyte, unless it may break it anywhere.
constexpr int g_iLongWord = 10000;

bool HasLongWord(const QString& text)
{
    int length = 0;
    return std::any_of(text.begin(), text.end(),
                       [&length](QChar character)
                       {
                           length = character.isSpace() ? 0 : length + 1;
                           return length > g_iLongWord;
                       });
}

} // namespace

CQTSimpleTextWidget::CQTSimpleTextWidget()
{
    setReadOnly(false);
}

CQTSimpleTextWidget::~CQTSimpleTextWidget() = default;

void CQTSimpleTextWidget::InitFromElement()
{
    OnValueChange(nullptr);
}

const char* CQTSimpleTextWidget::GetType()
{
    return "qt.simple.text";
}

void CQTSimpleTextWidget::OnValueChange(sValueChangeInfo*)
{
    CSimpleDataElement* element = GetSafeData();
    assert(element && "CQTSimpleTextWidget::OnValueChange: no text element is bound");
    std::string text;
    element->GetDataAsString(text);
    const QString shown = ToQString(text);
    // Neither the text that goes nor the one that comes is broken in the slow way.
    const bool isLong = HasLongWord(shown);
    if (isLong && wordWrapMode() == QTextOption::WrapAtWordBoundaryOrAnywhere)
    {
        setWordWrapMode(QTextOption::WrapAnywhere);
        m_bBreaksAnywhere = true;
    }
    setText(shown);
    if (!isLong && std::exchange(m_bBreaksAnywhere, false))
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_sShown = toPlainText();
    if (ToNarrow(m_sShown) == text)
        text.clear();
    m_sOriginal = std::move(text);
    if (m_sOriginal.empty())
        m_sShown.clear();
    update();
}

int CQTSimpleTextWidget::GetRequiredWidth()
{
    return 20;
}

int CQTSimpleTextWidget::GetRequiredHeight(int)
{
    return 100;
}

INSPECTOR_LAYOUT_OPERATIONS(CQTSimpleTextWidget);

void CQTSimpleTextWidget::GetDataAsString(std::string& out)
{
    const QString text = toPlainText();
    if (!m_sOriginal.empty() && text == m_sShown)
        out = m_sOriginal;
    else
        out = ToNarrow(text);
}

CSimpleDataElement* CQTSimpleTextWidget::GetSafeData()
{
    return dynamic_cast<CSimpleDataElement*>(m_pElement);
}

void CQTSimpleTextWidget::focusOutEvent(QFocusEvent*)
{
    if (m_bRowGone)
        return;
    const CFocusMove moving(*this);
    CSimpleDataElement* element = GetSafeData();
    assert(element && "CQTSimpleTextWidget::focusOutEvent: no text element is bound");
    // The host may remove this row when it learns of the change.
    const QPointer<CQTSimpleTextWidget> self(this);
    element->OnCtrlValueChange();
    if (self)
        update();
}
