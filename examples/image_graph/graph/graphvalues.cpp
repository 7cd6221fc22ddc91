// The document's changes of values.
#include "graphchange.h"
#include "graphdocument.h"

#include <utility>

namespace
{

QString SetName(const sImageProperty& property)
{
    return CGraphDocument::tr("Set %1").arg(QString::fromStdString(property.m_sLabel));
}

void AddStep(sGraphChange& change, int node, const sImageProperty& property,
             const CImageValue& before, const CImageValue& after)
{
    if (before != after)
        change.m_vValues.push_back({node, &property, {before, after}});
}

} // namespace

template <class TWrite>
sWriteResult CGraphDocument::Write(const std::vector<int>& nodes, const sImageProperty& property,
                                   TWrite write)
{
    sWriteResult worst;
    sGraphChange change;
    for (const int id : Present(nodes))
    {
        CImageOperation& operation = *m_graph.Find(id)->m_pOperation;
        const CImageValue before = operation.GetValue(property);
        const sWriteResult result = write(operation);
        if (result.m_eOutcome > worst.m_eOutcome)
            worst = result;
        AddStep(change, id, property, before, operation.GetValue(property));
    }
    Push(SetName(property), std::move(change));
    return worst;
}

sWriteResult CGraphDocument::SetText(const std::vector<int>& nodes, const sImageProperty& property,
                                     const std::string& text)
{
    return Write(nodes, property,
                 [&](CImageOperation& operation) { return operation.SetText(property, text); });
}

sWriteResult CGraphDocument::SetComponent(const std::vector<int>& nodes,
                                          const sImageProperty& property, int component,
                                          const std::string& text)
{
    return Write(nodes, property,
                 [&](CImageOperation& operation)
                 { return operation.SetComponent(property, component, text); });
}

void CGraphDocument::SetColor(const std::vector<int>& nodes, const sImageProperty& property,
                              const CImageOperation::CColor& color)
{
    Write(nodes, property,
          [&](CImageOperation& operation)
          {
              operation.SetColor(property, color);
              return sWriteResult();
          });
}

void CGraphDocument::Reset(const std::vector<int>& nodes)
{
    const std::vector<int> present = Present(nodes);
    sGraphChange change;
    for (const int id : present)
    {
        CImageOperation& operation = *m_graph.Find(id)->m_pOperation;
        const std::vector<sImageProperty>& properties = operation.GetInfo().m_vProperties;
        std::vector<CImageValue> before;
        for (const sImageProperty& property : properties)
            before.push_back(operation.GetValue(property));
        operation.Reset();
        for (std::size_t i = 0; i < properties.size(); ++i)
            if (!properties[i].m_bReadOnly)
                AddStep(change, id, properties[i], before[i], operation.GetValue(properties[i]));
    }
    Push(tr("Reset %1").arg(NameOf(present)), std::move(change));
}
