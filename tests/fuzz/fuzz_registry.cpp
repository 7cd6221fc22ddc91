// The controller's registry and queues, with hooks that come back into them.

#include "bytes.h"
#include "check.h"

#include <inspectorcontroller.h>
#include <inspectordataelement.h>
#include <inspectordatawidget.h>
#include <inspectorview.h>

#include <algorithm>
#include <memory>
#include <set>

namespace
{

class CRegistryRun;

struct sLiving
{
    std::set<const void*> m_setElements;
    std::set<const void*> m_setWidgets;
    std::set<const void*> m_setNotices;
};

class CFuzzNotice : public CInspectorController::IDirtyControllerDataInfo
{
public:
    CFuzzNotice(sLiving& living, bool late) : m_bLate(late), m_rLiving(living)
    {
        m_rLiving.m_setNotices.insert(this);
    }
    ~CFuzzNotice() override { FUZZ_CHECK(m_rLiving.m_setNotices.erase(this) == 1); }

    const bool m_bLate; ///< queued during a delivery, which may drop it

private:
    sLiving& m_rLiving;
};

class CFuzzElement : public CInspectorDataElement
{
public:
    explicit CFuzzElement(CRegistryRun& run);
    ~CFuzzElement() override;
    const char* GetType() override { return "fuzz"; }
    void Connect() override;

private:
    CRegistryRun& m_rRun;
};

class CFuzzWidget : public CInspectorDataWidget
{
public:
    explicit CFuzzWidget(CRegistryRun& run);
    ~CFuzzWidget() override;
    void InitFromElement() override;
    void StartEditing() override;
    const char* GetType() override { return "fuzz"; }
    int GetRequiredWidth() override { return 10; }
    int GetRequiredHeight(int) override { return 20; }
    void ResizeWidget(int, int) override {}
    void MoveWidget(int, int) override {}
    void Show() override {}
    void Hide() override {}

private:
    CRegistryRun& m_rRun;
};

class CFuzzView : public CInspectorView
{
public:
    explicit CFuzzView(CRegistryRun& run) : m_rRun(run) {}
    void UpdateView() override {}
    void ParentControlToInspector(CInspectorDataWidget*) override {}
    void EnsureVisible(CInspectorDataWidget* widget) override;

private:
    CRegistryRun& m_rRun;
};

class CFuzzController : public CInspectorController
{
public:
    explicit CFuzzController(CRegistryRun& run) : m_rRun(run) {}
    void BuildInspector() override {}
    void RefreshInspector() override {}
    void HandleDirtyItem(sInspectorControllerData* record, IDirtyControllerDataInfo*) override;
    void HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&) override;

    using CInspectorController::m_lItems;
    using CInspectorController::m_mapDirtyItems;
    using CInspectorController::m_vControllerDirt;

private:
    CRegistryRun& m_rRun;
};

class CRegistryRun
{
public:
    explicit CRegistryRun(CBytes bytes) : m_bytes(bytes) { Restore(); }

    ~CRegistryRun()
    {
        m_iDepth = g_iDepthAtMost;
        m_pController.reset();
        m_pView.reset();
        DropLateNotices();
        FUZZ_CHECK(m_living.m_setElements.empty() && m_living.m_setWidgets.empty() &&
                   m_living.m_setNotices.empty());
    }

    void Run()
    {
        for (int steps = 0; !m_bytes.IsEmpty() && steps < 300; ++steps)
        {
            Restore();
            Operate();
            Check();
        }
    }

    /// What the host does when the library calls it.
    void Hook()
    {
        if (m_iDepth >= g_iDepthAtMost || m_bytes.Below(2) == 0)
            return;
        ++m_iDepth;
        Operate();
        --m_iDepth;
    }

    void Deliver(const CFuzzController& controller, const void* record)
    {
        const auto& rows = controller.m_lItems;
        FUZZ_CHECK(!record || std::find(rows.begin(), rows.end(), record) != rows.end());
        ++m_iDelivering;
        Hook();
        --m_iDelivering;
    }

    sLiving m_living;

private:
    static constexpr int g_iDepthAtMost = 4;

    void Restore()
    {
        if (m_pController && m_pView)
            return;
        if (!m_pController)
            m_pController = std::make_unique<CFuzzController>(*this);
        if (!m_pView)
            m_pView = std::make_unique<CFuzzView>(*this);
        m_pController->SetInspectorView(m_pView.get());
        m_pView->SetController(m_pController.get());
    }

    CInspectorController::sInspectorControllerData* Row()
    {
        const auto& rows = m_pController->m_lItems;
        return rows.empty() ? nullptr : *std::next(rows.begin(), m_bytes.Below(rows.size()));
    }

    CInspectorDataElement* Element()
    {
        const auto* row = Row();
        return row ? row->m_pElement : nullptr;
    }

    CInspectorDataWidget* Widget()
    {
        const auto* row = Row();
        return row ? row->m_pWidget : nullptr;
    }

    void AddRow()
    {
        auto* element = new CFuzzElement(*this);
        auto* widget = new CFuzzWidget(*this);
        m_pController->AddItem(element, widget, nullptr);
        if (m_bytes.Below(4) != 0)
            m_pView->AddElement(element, widget, nullptr, nullptr, nullptr);
    }

    void Dirtify()
    {
        auto* notice =
            m_bytes.Below(3) == 0 ? nullptr : new CFuzzNotice(m_living, m_iDelivering > 0);
        auto* row = m_bytes.Below(5) == 0 ? nullptr : Row();
        if (row)
            m_pController->DirtifyItem(row, notice);
        else
            m_pController->DirtifyController(notice);
    }

    void Operate()
    {
        if (!m_pController || !m_pView)
            return;
        switch (m_bytes.Below(16))
        {
        case 0:
        case 1:
        case 2:
        case 3:
            return AddRow();
        case 4:
            return m_pController->RemoveItem(Element());
        case 5:
            return m_pController->ClearAllData();
        case 6:
            return m_pController->ConnectDataElements();
        case 7:
        case 8:
        case 9:
            return Dirtify();
        case 10:
        case 11:
            return m_pController->HandleDirtyItems();
        case 12:
            return m_bytes.Below(2) ? m_pController->GiveFocusToNextElement(Widget())
                                    : m_pController->GiveFocusToPrevElement(Widget());
        case 13:
            return m_pView->RecomputeLayout();
        case 14:
            // A toolkit parent takes the control along.
            delete Widget();
            return;
        default:
            if (m_bytes.Below(3) == 0)
                m_pController.reset();
            else if (m_iInView == 0 && m_bytes.Below(3) == 0)
                m_pView.reset();
            else
                m_pView->RemoveAll();
        }
    }

    void DropLateNotices()
    {
        std::set<const void*> queued;
        if (m_pController)
        {
            for (const auto& [row, queue] : m_pController->m_mapDirtyItems)
                queued.insert(queue.begin(), queue.end());
            const auto& dirt = m_pController->m_vControllerDirt;
            queued.insert(dirt.begin(), dirt.end());
        }
        const auto notices = m_living.m_setNotices;
        for (const void* notice : notices)
        {
            const auto* late = static_cast<const CFuzzNotice*>(notice);
            if (late->m_bLate && queued.count(late) == 0)
                delete late;
        }
    }

    void Check()
    {
        DropLateNotices();
        if (!m_pController)
        {
            FUZZ_CHECK(m_living.m_setElements.empty() && m_living.m_setNotices.empty());
            return;
        }
        std::size_t widgets = 0;
        for (const auto* row : m_pController->m_lItems)
        {
            FUZZ_CHECK(m_living.m_setElements.count(row->m_pElement) == 1);
            widgets += row->m_pWidget != nullptr;
        }
        FUZZ_CHECK(m_living.m_setElements.size() == m_pController->m_lItems.size());
        FUZZ_CHECK(m_living.m_setWidgets.size() == widgets);
        std::size_t notices = 0;
        for (const auto& [row, queue] : m_pController->m_mapDirtyItems)
        {
            const auto& rows = m_pController->m_lItems;
            FUZZ_CHECK(std::find(rows.begin(), rows.end(), row) != rows.end());
            notices += queue.size();
        }
        for (const auto* notice : m_pController->m_vControllerDirt)
            notices += notice != nullptr;
        FUZZ_CHECK(m_living.m_setNotices.size() == notices);
    }

    friend class CFuzzView;

    CBytes m_bytes;
    std::unique_ptr<CFuzzController> m_pController;
    std::unique_ptr<CFuzzView> m_pView;
    int m_iDepth = 0;
    int m_iDelivering = 0;
    int m_iInView = 0;
};

CFuzzElement::CFuzzElement(CRegistryRun& run) : m_rRun(run)
{
    m_rRun.m_living.m_setElements.insert(this);
}

CFuzzElement::~CFuzzElement()
{
    FUZZ_CHECK(m_rRun.m_living.m_setElements.erase(this) == 1);
}

void CFuzzElement::Connect()
{
    m_rRun.Hook();
}

CFuzzWidget::CFuzzWidget(CRegistryRun& run) : m_rRun(run)
{
    m_rRun.m_living.m_setWidgets.insert(this);
}

CFuzzWidget::~CFuzzWidget()
{
    FUZZ_CHECK(m_rRun.m_living.m_setWidgets.erase(this) == 1);
}

void CFuzzWidget::InitFromElement()
{
    m_rRun.Hook();
}

void CFuzzWidget::StartEditing()
{
    m_rRun.Hook();
}

void CFuzzView::EnsureVisible(CInspectorDataWidget*)
{
    CRegistryRun& run = m_rRun;
    ++run.m_iInView;
    run.Hook();
    --run.m_iInView;
}

void CFuzzController::HandleDirtyItem(sInspectorControllerData* record, IDirtyControllerDataInfo*)
{
    m_rRun.Deliver(*this, record);
}

void CFuzzController::HandleControllerDirt(std::vector<IDirtyControllerDataInfo*>&)
{
    m_rRun.Deliver(*this, nullptr);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    CRegistryRun(CBytes(data, size)).Run();
    return 0;
}
