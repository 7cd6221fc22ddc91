#pragma once

#include <inspectordatawidget.h>
#include <inspectorview.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

// The layout engine alone, with widgets that only store what they are told.

class CFakeWidget : public CInspectorDataWidget
{
public:
    void InitFromElement() override {}
    const char* GetType() override { return "fake"; }
    int GetRequiredWidth() override { return 20; }
    int GetRequiredHeight(int) override { return 20; }
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

    int m_iX = 0;
    int m_iY = 0;
    int m_iWidth = 0;
    int m_iHeight = 0;
};

/// What CFakeView needs for a number of rows.
inline std::vector<std::unique_ptr<CFakeWidget>> MakeFakeWidgets(int rows)
{
    std::vector<std::unique_ptr<CFakeWidget>> widgets;
    for (int i = 0; i < rows; ++i)
    {
        for (int c = 0; c < (i % 20 == 19 ? 3 : 1); ++c)
            widgets.push_back(std::make_unique<CFakeWidget>());
    }
    return widgets;
}

/// Groups of 20 rows, of which the last is a container of three.
class CFakeView : public CInspectorView
{
public:
    explicit CFakeView(int rows) : CFakeView(rows, MakeFakeWidgets(rows)) {}

    CFakeView(int rows, std::vector<std::unique_ptr<CFakeWidget>> widgets)
        : m_vWidgets(std::move(widgets))
    {
        auto next = m_vWidgets.begin();
        sInspectorElement* group = nullptr;
        for (int i = 0; i < rows; ++i)
        {
            if (i % 20 == 0)
                group = AddGroup("Group", nullptr);
            const std::string name = "Parameter " + std::to_string(i);
            if (i % 20 == 19)
            {
                sInspectorElement* line = AddSingleLineContainer(name.c_str(), nullptr, group);
                for (int c = 0; c < 3; ++c)
                    AddElement(nullptr, next++->get(), nullptr, nullptr, line);
            }
            else
                AddElement(nullptr, next++->get(), name.c_str(), nullptr, group);
        }
        m_iInspectorWidth = 380;
        m_iInspectorHeight = 800;
        RecomputeLayout();
    }

    ~CFakeView() override { RemoveAll(); }

    void UpdateView() override {}
    void ParentControlToInspector(CInspectorDataWidget*) override {}
    int GetElementLabelWidth(sInspectorElement*) override { return 60; }

    using CInspectorView::GetHolderFromControl;

    /// What no layout can do without: every widget asked and placed once, along the tree.
    void WalkBare() { WalkBare(m_lElements); }

    std::vector<std::unique_ptr<CFakeWidget>> m_vWidgets;

private:
    static void PlaceBare(CInspectorDataWidget& widget)
    {
        const int width = widget.GetRequiredWidth();
        const int height = widget.GetRequiredHeight(width);
        widget.MoveWidget(0, height);
        widget.ResizeWidget(width, height);
    }

    static void WalkBare(const std::list<sInspectorElement>& nodes)
    {
        for (const sInspectorElement& node : nodes)
        {
            if (!node.m_pHolder)
                WalkBare(node.m_lChildren);
            else if (node.m_pHolder->m_iKind == eHolderControl)
                PlaceBare(*node.m_pHolder->m_pWidget);
            else
            {
                for (const sInspectorHolder* holder : node.m_pHolder->m_lChildren)
                    PlaceBare(*holder->m_pWidget);
            }
        }
    }
};
