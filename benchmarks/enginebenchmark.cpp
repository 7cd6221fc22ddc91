#include <inspectordatawidget.h>
#include <inspectorview.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

// The layout engine alone, with widgets that only store what they are told.

namespace
{

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

class CFakeView : public CInspectorView
{
public:
    explicit CFakeView(int rows)
    {
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
                    AddElement(nullptr, NewWidget(), nullptr, nullptr, line);
            }
            else
                AddElement(nullptr, NewWidget(), name.c_str(), nullptr, group);
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

    CFakeWidget* NewWidget()
    {
        m_vWidgets.push_back(std::make_unique<CFakeWidget>());
        return m_vWidgets.back().get();
    }

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

void WalkBare(benchmark::State& state)
{
    CFakeView view(static_cast<int>(state.range(0)));
    for (auto _ : state)
        view.WalkBare();
}

void RecomputeLayout(benchmark::State& state)
{
    CFakeView view(static_cast<int>(state.range(0)));
    for (auto _ : state)
        view.RecomputeLayout();
}

void OffsetControls(benchmark::State& state)
{
    CFakeView view(static_cast<int>(state.range(0)));
    int offset = 0;
    for (auto _ : state)
        view.OffsetControls(0, ++offset);
}

void GetHolderFromControl(benchmark::State& state)
{
    CFakeView view(static_cast<int>(state.range(0)));
    std::size_t next = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(view.GetHolderFromControl(view.m_vWidgets[next].get()));
        next = (next + 7919) % view.m_vWidgets.size();
    }
}

void AddElements(benchmark::State& state)
{
    const int rows = static_cast<int>(state.range(0));
    for (auto _ : state)
    {
        auto view = std::make_unique<CFakeView>(rows);
        state.PauseTiming();
        view.reset();
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(WalkBare)->RangeMultiplier(10)->Range(100, 1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(RecomputeLayout)->RangeMultiplier(10)->Range(100, 1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(OffsetControls)->RangeMultiplier(10)->Range(100, 1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(GetHolderFromControl)->RangeMultiplier(10)->Range(100, 1000000);
BENCHMARK(AddElements)->RangeMultiplier(10)->Range(100, 1000000)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
