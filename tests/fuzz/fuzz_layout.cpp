// The layout engine under any tree, size, request and mode.

#include "bytes.h"
#include "check.h"

#include <inspectordatawidget.h>
#include <inspectorview.h>

#include <deque>
#include <list>
#include <vector>

namespace
{

class CFuzzWidget : public CInspectorDataWidget
{
public:
    CFuzzWidget(int width, int height) : m_iRequiredWidth(width), m_iRequiredHeight(height) {}

    void InitFromElement() override {}
    const char* GetType() override { return "fuzz"; }
    int GetRequiredWidth() override { return m_iRequiredWidth; }
    int GetRequiredHeight(int) override { return m_iRequiredHeight; }
    void ResizeWidget(int width, int height) override
    {
        m_iWidth = width;
        m_iHeight = height;
    }
    void MoveWidget(int x, int y) override
    {
        m_iX = x;
        m_iY = y;
    }
    void Show() override {}
    void Hide() override {}

    int m_iRequiredWidth;
    int m_iRequiredHeight;
    int m_iX = 0;
    int m_iY = 0;
    int m_iWidth = 0;
    int m_iHeight = 0;
};

class CFuzzView : public CInspectorView
{
public:
    void UpdateView() override {}
    void ParentControlToInspector(CInspectorDataWidget*) override {}
    int GetElementLabelWidth(sInspectorElement*) override { return m_iLabel; }

    using CInspectorView::GetHolderFromControl;
    using CInspectorView::m_bContentShown;
    using CInspectorView::m_bPreview;
    using CInspectorView::m_iContentHeight;
    using CInspectorView::m_iInspectorHeight;
    using CInspectorView::m_iInspectorWidth;
    using CInspectorView::m_lElements;
    using CInspectorView::m_setControlHolders;
    using CInspectorView::m_setHolders;

    int m_iLabel = 0;
};

class CLayoutRun
{
public:
    explicit CLayoutRun(CBytes bytes) : m_bytes(bytes) {}

    void Run()
    {
        for (int steps = 0; !m_bytes.IsEmpty() && steps < 200; ++steps)
            Step();
        m_view.RecomputeLayout();
        Check();
    }

private:
    using CNode = CInspectorView::sInspectorElement;

    CInspectorView::sRequestSize* Request()
    {
        if (m_bytes.Below(3) == 0)
            return nullptr;
        const auto type = [this]
        { return static_cast<CInspectorView::eRequestSizeType>(m_bytes.Below(3)); };
        const auto min = type();
        m_request.SetMinValue(min, m_bytes.Number());
        const auto max = type();
        m_request.SetMaxValue(max, m_bytes.Number());
        m_request.SetOptions(m_bytes.Number());
        return &m_request;
    }

    CNode* Parent()
    {
        const unsigned place = m_bytes.Below(m_vParents.size() + 1);
        return place == m_vParents.size() ? nullptr : m_vParents[place];
    }

    CNode* Group()
    {
        CNode* parent = Parent();
        return parent && parent->m_iKind == CInspectorView::eElementGroup ? parent : nullptr;
    }

    void Step()
    {
        switch (m_bytes.Below(14))
        {
        case 0:
            m_vParents.push_back(m_view.AddGroup(m_bytes.Below(2) ? "group" : "", Group()));
            break;
        case 1:
            m_vParents.push_back(m_view.AddSingleLineContainer("line", Request(), Group()));
            break;
        case 2:
        case 3:
        case 4:
        case 5:
            AddControl();
            break;
        case 6:
            m_view.SetPreviewMode(m_bytes.Below(2) != 0);
            break;
        case 7:
            m_view.ShowContent(m_bytes.Below(2) != 0, m_bytes.Below(2) != 0);
            break;
        case 8:
        {
            const int width = m_bytes.Number();
            m_view.ResizeInspector(width, m_bytes.Number());
            break;
        }
        case 9:
        {
            const int dx = m_bytes.Number();
            m_view.OffsetControls(dx, m_bytes.Number());
            break;
        }
        case 10:
            m_view.m_iLabel = m_bytes.Number();
            break;
        case 11:
            if (!m_dWidgets.empty() && m_bytes.Below(4) == 0)
                m_dWidgets.pop_front();
            break;
        case 12:
            m_vParents.clear();
            if (m_bytes.Below(2) == 0)
                m_view.RemoveEmptyGroups();
            else
                m_view.RemoveAll();
            break;
        default:
            m_view.RecomputeLayout();
            Check();
            break;
        }
    }

    void AddControl()
    {
        const int width = m_bytes.Number();
        m_dWidgets.emplace_back(width, m_bytes.Number());
        CInspectorView::sRequestSize* request = Request();
        const auto* holder =
            m_view.AddElement(nullptr, &m_dWidgets.back(), "label", request, Parent());
        FUZZ_CHECK(m_view.GetHolderFromControl(&m_dWidgets.back()) == holder);
    }

    /// What the last layout must have left behind, whatever the numbers are.
    void Check()
    {
        for (const auto* holder : m_view.m_setControlHolders)
        {
            FUZZ_CHECK(
                m_view.m_setHolders.count(const_cast<CInspectorView::sInspectorHolder*>(holder)));
            const auto* widget = static_cast<const CFuzzWidget*>(holder->GetWidget());
            if (!widget)
                continue;
            FUZZ_CHECK(widget->m_iX == holder->m_iX && widget->m_iY == holder->m_iY);
            FUZZ_CHECK(widget->m_iWidth == (m_view.m_bContentShown ? holder->m_iWidth : 0));
            FUZZ_CHECK(widget->m_iHeight == (m_view.m_bContentShown ? holder->m_iHeight : 0));
        }
        if (m_view.m_lElements.empty())
            FUZZ_CHECK(m_view.m_iContentHeight == (m_view.m_bPreview ? 0 : 10));
        if (!m_view.m_bPreview)
            CheckRows(m_view.m_lElements, nullptr);
    }

    /// A row of the normal mode is cut in two: label and control.
    void CheckRows(std::list<CNode>& nodes, const CNode* parent)
    {
        for (CNode& node : nodes)
        {
            FUZZ_CHECK(node.m_pParent == parent);
            CheckRows(node.m_lChildren, &node);
            if (!node.m_pHolder)
                continue;
            const auto sum = [](int a, int b)
            { return static_cast<int>(static_cast<unsigned>(a) + static_cast<unsigned>(b)); };
            FUZZ_CHECK(sum(node.m_iLabelWidth, node.m_pHolder->m_iWidth) == node.m_iWidth);
            FUZZ_CHECK(sum(node.m_iX, node.m_iLabelWidth) == node.m_pHolder->m_iX);
            FUZZ_CHECK(node.m_pHolder->m_iY == node.m_iY);
            FUZZ_CHECK(node.m_pHolder->m_iHeight == node.m_iHeight);
        }
    }

    CBytes m_bytes;
    CInspectorView::sRequestSize m_request;
    std::deque<CFuzzWidget> m_dWidgets;
    CFuzzView m_view;
    std::vector<CNode*> m_vParents;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    CLayoutRun(CBytes(data, size)).Run();
    return 0;
}
