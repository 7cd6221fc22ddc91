#pragma once

#include <support/qtmessages.h>

#include <gegl/operationcatalog.h>
#include <graph/graphdocument.h>
#include <inspector/inspectorpanel.h>

#include <qtinspectorview.h>
#include <qttextencoding.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <memory>

/// A document with a node that is shown in the panel. Nothing is on the screen.
class CPanelFixture : public testing::Test
{
protected:
    explicit CPanelFixture(
        CQTTextEncoding::eTextEncoding encoding = CQTTextEncoding::eTextEncodingUtf8)
    {
        // The offscreen display has no place for hints.
        qtmessages::Allow(QStringLiteral("propagateSizeHints"));
        CQTTextEncoding::SetEncoding(encoding);
        m_pPanel = std::make_unique<CInspectorPanel>(m_document);
        m_pPanel->resize(380, 700);
    }
    ~CPanelFixture() override
    {
        m_pPanel.reset();
        CQTTextEncoding::SetEncoding(CQTTextEncoding::eTextEncodingLatin1);
    }

    void Show(const std::string& operation)
    {
        m_document.Clear();
        m_iNode = m_document.AddNode(operation, QPointF());
        m_pPanel->ShowNodes({m_iNode});
    }

    const CImageOperation& Operation(int node) const
    {
        return *m_document.GetGraph().Find(node)->m_pOperation;
    }
    const sOperationInfo& Info() const { return Operation(m_iNode).GetInfo(); }
    std::string Value(const sImageProperty& property) const
    {
        return Operation(m_iNode).GetText(property);
    }
    std::string Value(const char* property) const { return Value(*Info().FindProperty(property)); }

    /// The controls of a property, left to right.
    template <class TWidget>
    QList<TWidget*> Controls(const std::string& property)
    {
        return m_pPanel->findChildren<TWidget*>(QString::fromStdString(property));
    }

    /// The line editor that is open; null when none has the keyboard after a while.
    static QLineEdit* Editor()
    {
        const auto find = [] { return qobject_cast<QLineEdit*>(QApplication::focusWidget()); };
        return QTest::qWaitFor([&] { return find() != nullptr; }) ? find() : nullptr;
    }

    /// Does what comes before every painting: notices are delivered.
    void Deliver() { m_pPanel->GetView()->OnPreDraw(); }

    CGraphDocument m_document;
    int m_iNode = 0;
    std::unique_ptr<CInspectorPanel> m_pPanel;
};
