#pragma once

#include <graph/graphdocument.h>

#include <random>
#include <string>
#include <vector>

/// Everything that a graph holds, as text: two graphs with the same text are the same.
std::string Describe(const CGraph& graph);

/// The same without the numbers of the nodes, which a file does not keep.
std::string DescribeShape(const CGraph& graph);

/// The value of a parameter in \p node, as text.
std::string GetText(const CGraphDocument& document, int node, const char* property);

/// Sets a parameter of \p node.
sWriteResult SetText(CGraphDocument& document, int node, const char* property,
                     const std::string& text);

/// A user who does one thing after the other, without a plan.
class CRandomUser
{
public:
    CRandomUser(CGraphDocument& document, unsigned seed) : m_document(document), m_random(seed) {}

    void AddNode();
    void Connect();
    void SetAnyValue();
    /// Any command of the document.
    void DoSomething();

private:
    int Number(int end);
    int AnyNode();
    std::vector<int> SomeNodes();
    std::string AnyText(const sImageProperty& property);

    CGraphDocument& m_document;
    std::mt19937 m_random;
};
