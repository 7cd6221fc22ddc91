#pragma once

#include <support/qtmessages.h>

#include <gegl/operationcatalog.h>
#include <graphdocument.h>
#include <inspector/inspectorpanel.h>

#include <qtinspectorview.h>
#include <qttextencoding.h>

#include <gtest/gtest.h>

#include <memory>

/// A document with one operation that is shown in the panel. Nothing is on the screen.
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
        m_pPanel->ShowItem(nullptr);
        m_document.Clear();
        m_pItem = m_document.Add(operation, nullptr);
        m_pPanel->ShowItem(m_pItem);
    }

    const sOperationInfo& Info() const { return m_pItem->m_pOperation->GetInfo(); }
    std::string Value(const sImageProperty& property) const
    {
        return m_pItem->m_pOperation->GetText(property);
    }
    std::string Value(const char* property) const { return Value(*Info().FindProperty(property)); }

    /// The controls of a property, left to right.
    template <class TWidget>
    QList<TWidget*> Controls(const std::string& property)
    {
        return m_pPanel->findChildren<TWidget*>(QString::fromStdString(property));
    }

    /// Does what comes before every painting: notices are delivered.
    void Deliver() { m_pPanel->GetView()->OnPreDraw(); }

    CGraphDocument m_document;
    sGraphItem* m_pItem = nullptr;
    std::unique_ptr<CInspectorPanel> m_pPanel;
};
