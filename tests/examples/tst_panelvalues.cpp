#include "graphediting.h"
#include "panelfixture.h"

#include <gegl/numbertext.h>

#include <qtenumdatawidget.h>
#include <qtsimpleboolwidget.h>
#include <qtsimpledatawidget.h>
#include <qtsimpletextwidget.h>

#include <QApplication>
#include <QFocusEvent>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <set>

namespace
{

constexpr auto g_eValidate = CInspectorDataElement::eEndEditValidate;

std::string Shown(ISimpleDataProvider& widget)
{
    std::string text;
    widget.GetDataAsString(text);
    return text;
}

/// Every value of every operation, written through the controls as a user does.
class CPanelValues : public CPanelFixture,
                     public testing::WithParamInterface<CQTTextEncoding::eTextEncoding>
{
protected:
    CPanelValues() : CPanelFixture(GetParam()) {}

    void WriteField(const sImageProperty& property, const std::string& text)
    {
        const auto fields = Controls<CQTSimpleDataWidget>(property.m_sName);
        ASSERT_EQ(fields.size(), 1);
        fields[0]->FinishValueEdit(text.c_str(), g_eValidate);
        Deliver();
        EXPECT_EQ(Value(property), text);
        EXPECT_EQ(Shown(*fields[0]), text);
    }

    void WriteNumber(const sImageProperty& property)
    {
        const double low = std::max(property.m_dMin, -1000.0);
        const double high = std::min(property.m_dMax, low + 1000.0);
        double number = low + (high - low) * 0.375;
        if (property.m_eKind != ePropertyNumber)
            number = std::floor(number);
        for (const double value : {number, low, high})
            WriteField(property, NumberToText(value));
    }

    void WriteBool(const sImageProperty& property)
    {
        const auto boxes = Controls<CQTSimpleBoolWidget>(property.m_sName);
        ASSERT_EQ(boxes.size(), 1);
        const std::string before = Value(property);
        QTest::mouseClick(boxes[0], Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        Deliver();
        EXPECT_NE(Value(property), before);
        EXPECT_EQ(boxes[0]->GetValue(), Value(property) == "true");
    }

    void WriteEnum(const sImageProperty& property)
    {
        const auto boxes = Controls<CQTEnumDataWidget>(property.m_sName);
        ASSERT_EQ(boxes.size(), 1);
        ASSERT_FALSE(property.m_vNicknames.empty());
        for (const std::string& nickname : property.m_vNicknames)
        {
            boxes[0]->FinishValueEdit(nickname.c_str(), CInspectorDataElement::eEndEditFocusLost);
            Deliver();
            EXPECT_EQ(Value(property), nickname);
            EXPECT_EQ(Shown(*boxes[0]), nickname);
        }
    }

    void WriteColor(const sImageProperty& property)
    {
        const auto fields = Controls<CQTSimpleDataWidget>(property.m_sName);
        ASSERT_EQ(fields.size(), 4);
        const char* texts[] = {"0.125", "0.6", "1", "0.3333"};
        for (int i = 0; i < 4; ++i)
            fields[i]->FinishValueEdit(texts[i], g_eValidate);
        Deliver();
        for (int i = 0; i < 4; ++i)
        {
            EXPECT_EQ(Operation(m_iNode).GetComponent(property, i), texts[i]) << i;
            EXPECT_EQ(Shown(*fields[i]), texts[i]);
        }
    }

    void WriteText(const sImageProperty& property)
    {
        const bool isUtf8 = GetParam() == CQTTextEncoding::eTextEncodingUtf8;
        const std::string text = isUtf8 ? "a <b> & \u00e9 \u4f60" : "a <b> & ~";
        if (!property.m_bMultiLine)
        {
            WriteField(property, text);
            return;
        }
        const auto boxes = Controls<CQTSimpleTextWidget>(property.m_sName);
        ASSERT_EQ(boxes.size(), 1);
        const std::string lines = text + "\nsecond";
        boxes[0]->setPlainText(QString::fromStdString(lines));
        QFocusEvent out(QEvent::FocusOut);
        QApplication::sendEvent(boxes[0], &out);
        Deliver();
        EXPECT_EQ(Value(property), lines);
    }

    void Write(const sImageProperty& property)
    {
        switch (property.m_eKind)
        {
        case ePropertyNumber:
        case ePropertyInteger:
        case ePropertySeed:
            return WriteNumber(property);
        case ePropertyBool:
            return WriteBool(property);
        case ePropertyEnum:
            return WriteEnum(property);
        case ePropertyColor:
            return WriteColor(property);
        case ePropertyText:
            return WriteText(property);
        case ePropertyFile:
            return WriteField(property, "/no/such/picture.png");
        case ePropertyOther:
            return;
        }
    }
};

} // namespace

TEST_P(CPanelValues, ComeBackFromAGraphOfAllOperations)
{
    int previous = 0;
    for (const sOperationInfo& info : GetOperationCatalog())
    {
        const int node = m_document.AddNode(info.m_sName, QPointF());
        m_document.Connect(previous, node, "input");
        previous = node;
    }
    const CGraph& graph = m_document.GetGraph();
    EXPECT_GE(graph.GetNodes().size(), 200u);
    QUndoStack& stack = m_document.GetUndoStack();
    const int built = stack.index();
    const std::string before = Describe(graph);
    std::set<std::string> written;
    for (const auto& [id, node] : graph.GetNodes())
    {
        m_iNode = id;
        m_pPanel->ShowNodes({id});
        for (const sImageProperty& property : node.GetInfo().m_vProperties)
        {
            const testing::ScopedTrace trace(__FILE__, __LINE__,
                                             node.GetInfo().m_sName + ' ' + property.m_sName);
            if (property.m_bReadOnly)
                continue;
            Write(property);
            written.insert(node.GetInfo().m_sName + ' ' + property.m_sName);
        }
    }
    EXPECT_GT(written.size(), 500u);
    const std::string after = Describe(graph);
    EXPECT_NE(after, before);
    stack.setIndex(built);
    EXPECT_EQ(Describe(graph), before);
    stack.setIndex(stack.count());
    EXPECT_EQ(Describe(graph), after);
}

INSTANTIATE_TEST_SUITE_P(InEachEncoding, CPanelValues,
                         testing::Values(CQTTextEncoding::eTextEncodingLatin1,
                                         CQTTextEncoding::eTextEncodingUtf8));
