#include "doubles.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

/// Its control is going: nobody is told of the end any more.
void Leave(sEditing& editing, const QWidget* control)
{
    if (editing.m_pOpen == control)
        editing.m_pOpen = nullptr;
}

/// The one report that ends what the control started.
void Report(CHookSink& sink, sEditing& editing, const QWidget* control)
{
    ++sink.m_tally.m_lReports;
    EXPECT_EQ(editing.m_pOpen, control) << "an end was reported that was not due";
    editing.m_pOpen = nullptr;
}

} // namespace

CMonkeyField::CMonkeyField(CHookSink& sink) : TMonkeyWidget(sink)
{
    ++m_rSink.m_tally.m_iFields;
}

CMonkeyField::~CMonkeyField()
{
    --m_rSink.m_tally.m_iFields;
    Leave(m_rSink.m_line, this);
}

void CMonkeyField::StartEditing()
{
    CHookSink& sink = m_rSink;
    sink.m_line.m_vStarting.push_back(this);
    CQTSimpleDataWidget::StartEditing();
    sink.m_line.m_vStarting.pop_back();
}

void CMonkeyField::FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause)
{
    Report(m_rSink, m_rSink.m_line, this);
    CQTSimpleDataWidget::FinishValueEdit(value, cause);
}

CMonkeyChoice::CMonkeyChoice(CHookSink& sink) : TMonkeyWidget(sink)
{
    ++m_rSink.m_tally.m_iLists;
}

CMonkeyChoice::~CMonkeyChoice()
{
    --m_rSink.m_tally.m_iLists;
    Leave(m_rSink.m_list, this);
}

void CMonkeyChoice::FinishValueEdit(const char* value, CInspectorDataElement::eEndEditCause cause)
{
    Report(m_rSink, m_rSink.m_list, this);
    CQTEnumDataWidget::FinishValueEdit(value, cause);
}

void CMonkeyChoice::mousePressEvent(QMouseEvent* event)
{
    CHookSink& sink = m_rSink;
    sink.m_list.m_vStarting.push_back(this);
    CQTEnumDataWidget::mousePressEvent(event);
    sink.m_list.m_vStarting.pop_back();
}

void CMonkeyController::HandleDirtyItem(CRecord* record, CNotice* info)
{
    CHookSink& sink = m_rSink;
    ++sink.m_tally.m_lDeliveries;
    EXPECT_EQ(std::count(m_lItems.begin(), m_lItems.end(), record), 1) << "a dead row is handled";
    if (info)
    {
        auto* notice = static_cast<CMonkeyNotice*>(info);
        EXPECT_EQ(sink.m_tally.m_setNotices.count(notice), 1U) << "a dead notice is delivered";
        EXPECT_FALSE(std::exchange(notice->m_bDelivered, true)) << "a notice is delivered twice";
    }
    const CDepth delivering(sink.m_iDelivering);
    if (record->m_pWidget)
        record->m_pElement->UpdateData();
    sink.OnHook();
}

void CMonkeyController::HandleControllerDirt(std::vector<CNotice*>&)
{
    CHookSink& sink = m_rSink;
    ++sink.m_tally.m_lDeliveries;
    const CDepth delivering(sink.m_iDelivering);
    sink.OnHook();
}

void CMonkeyView::RemoveAll()
{
    ++m_ulTree;
    CQTInspectorView::RemoveAll();
}

void CMonkeyView::RemoveEmptyGroups()
{
    ++m_ulTree;
    CQTInspectorView::RemoveEmptyGroups();
}

void CMonkeyView::EnsureVisible(CInspectorDataWidget* widget)
{
    CQTInspectorView::EnsureVisible(widget);
    const CDepth inView(m_rSink.m_iInView);
    m_rSink.OnHook();
}

void CMonkeyView::OnContentHeightSet()
{
    CQTInspectorView::OnContentHeightSet();
    const CDepth inView(m_rSink.m_iInView);
    m_rSink.OnHook();
}

void CMonkeyView::paintEvent(QPaintEvent* event)
{
    const CDepth painting(m_rSink.m_iPainting);
    CQTInspectorView::paintEvent(event);
}
