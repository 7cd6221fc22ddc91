#pragma once

#include <support/calls.h>
#include <support/recordingview.h>
#include <support/recordingwidget.h>

#include <iterator>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

/// A view filled with recording widgets, without controller and elements: what the layout needs.
class CLayoutPanel
{
public:
    using CNode = CInspectorView::sInspectorElement;
    using CHolder = CInspectorView::sInspectorHolder;
    using CRequest = CInspectorView::sRequestSize;

    CNode* AddGroup(const std::string& name, CNode* parent = nullptr)
    {
        return m_view.AddGroup(name.c_str(), parent);
    }

    CNode* AddContainer(const std::string& name, CNode* parent = nullptr,
                        CRequest* request = nullptr)
    {
        return m_view.AddSingleLineContainer(name.c_str(), request, parent);
    }

    /// Adds a control, whose widget has the name of its label.
    CHolder* AddControl(const std::string& name, int requiredWidth, CNode* parent = nullptr,
                        CRequest* request = nullptr, int requiredHeight = 20)
    {
        m_vWidgets.push_back(
            std::make_unique<CRecordingWidget>(m_log, name, requiredWidth, requiredHeight));
        return m_view.AddElement(nullptr, m_vWidgets.back().get(), name.c_str(), request, parent);
    }

    CRecordingWidget& LastWidget() { return *m_vWidgets.back(); }

    /// The first top-level node, and the others by their place.
    CNode& Node(std::size_t index = 0)
    {
        return *std::next(m_view.m_lElements.begin(), static_cast<std::ptrdiff_t>(index));
    }

    static CRequest Absolute(int min, int max = -1)
    {
        CRequest request;
        request.SetMinValueAbsolute(min);
        request.SetMaxValueAbsolute(max);
        return request;
    }

    static CRequest Relative(int min, int max)
    {
        CRequest request;
        request.SetMinValueRelative(min);
        request.SetMaxValueRelative(max);
        return request;
    }

    static CRequest NoLabel()
    {
        CRequest request;
        request.SetOptions(CInspectorView::eRequestOptionNoLabel);
        return request;
    }

    CCallLog m_log;
    std::vector<std::unique_ptr<CRecordingWidget>> m_vWidgets;
    CRecordingView m_view{m_log};
};

/// A rectangle as tests write it down: x, y, width, height.
struct sRect
{
    int m_iX;
    int m_iY;
    int m_iWidth;
    int m_iHeight;

    bool operator==(const sRect& other) const
    {
        return m_iX == other.m_iX && m_iY == other.m_iY && m_iWidth == other.m_iWidth &&
               m_iHeight == other.m_iHeight;
    }
};

inline std::ostream& operator<<(std::ostream& out, const sRect& rect)
{
    return out << "(" << rect.m_iX << ", " << rect.m_iY << ", " << rect.m_iWidth << " x "
               << rect.m_iHeight << ")";
}

template <typename Thing>
sRect RectOf(const Thing& thing)
{
    return {thing.m_iX, thing.m_iY, thing.m_iWidth, thing.m_iHeight};
}
