#include "propertybinding.h"

#include "panelcontroller.h"

#include <algorithm>

std::string sPropertyBinding::Read() const
{
    const std::vector<const CImageOperation*> operations = m_pPanel->GetOperations();
    const auto read = [this](const CImageOperation* operation)
    {
        return m_iComponent < 0 ? operation->GetText(*m_pProperty)
                                : operation->GetComponent(*m_pProperty, m_iComponent);
    };
    if (operations.empty())
        return {};
    const std::string first = read(operations.front());
    const bool isSame =
        std::all_of(operations.begin(), operations.end(),
                    [&](const CImageOperation* operation) { return read(operation) == first; });
    return isSame ? first : g_sSeveral;
}

std::vector<CImageOperation::CColor> sPropertyBinding::ReadColors() const
{
    std::vector<CImageOperation::CColor> colors;
    for (const CImageOperation* operation : m_pPanel->GetOperations())
    {
        const CImageOperation::CColor color = operation->GetColor(*m_pProperty);
        if (!std::count(colors.begin(), colors.end(), color))
            colors.push_back(color);
    }
    return colors;
}

void sPropertyBinding::Write(const std::string& text) const
{
    CGraphDocument& document = m_pPanel->GetDocument();
    const std::vector<int>& nodes = m_pPanel->GetNodes();
    const sWriteResult result =
        m_iComponent < 0 ? document.SetText(nodes, *m_pProperty, text)
                         : document.SetComponent(nodes, *m_pProperty, m_iComponent, text);
    m_pPanel->OnValueWritten(*m_pProperty, result);
}
