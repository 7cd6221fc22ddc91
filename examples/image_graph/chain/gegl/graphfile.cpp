#include "graphfile.h"

#include <gegl/geglhandle.h>
#include <gegl/geglsession.h>
#include <gegl/graphcheck.h>
#include <gegl/operationcatalog.h>
#include "rendergraph.h"

#include <gegl.h>

#include <array>
#include <utility>

namespace
{

// A file in which every operation uses the one before it twice would be copied without end.
constexpr int g_iMaxOperations = 5000;

// The library writes texts as they are, so that a text with a "<" gives a file that cannot be read.
// The chain that is written is a copy whose texts are escaped.
void EscapeTexts(CImageOperation& operation)
{
    for (const sImageProperty& property : operation.GetInfo().m_vProperties)
    {
        if (property.m_eKind != ePropertyText && property.m_eKind != ePropertyFile)
            continue;
        const std::string text = operation.GetText(property);
        const GPointer<gchar> escaped(g_markup_escape_text(text.c_str(), -1));
        if (text != escaped.get())
            operation.SetText(property, escaped.get());
    }
}

CGraphChain CopyEscaped(const CGraphChain& chain)
{
    CGraphChain copy;
    for (const auto& item : chain)
    {
        auto copied = std::make_unique<sGraphItem>();
        copied->m_pOperation = item->m_pOperation->Copy();
        EscapeTexts(*copied->m_pOperation);
        copied->m_vBranch = CopyEscaped(item->m_vBranch);
        copy.push_back(std::move(copied));
    }
    return copy;
}

std::string ExactColor(const CImageOperation& operation, const sImageProperty& property)
{
    GeglColor* color = nullptr;
    gegl_node_get(operation.GetNode(), property.m_sName.c_str(), &color, nullptr);
    const GObjectPointer<GeglColor> owner(color);
    std::array<gdouble, 4> parts{};
    gegl_color_get_rgba(color, &parts[0], &parts[1], &parts[2], &parts[3]);
    std::string text;
    for (const gdouble part : parts)
    {
        std::array<gchar, G_ASCII_DTOSTR_BUF_SIZE> digits{};
        text += text.empty() ? "rgba(" : ", ";
        text += g_ascii_formatd(digits.data(), static_cast<gint>(digits.size()), "%.9g", part);
    }
    return text + ')';
}

// The library writes colours with three digits; this puts the others back. It walks the operations
// in the order of the file: the last of a chain first, each followed by its branch.
void WriteExactColors(const CGraphChain& chain, std::string& text, std::size_t& position)
{
    for (auto item = chain.rbegin(); item != chain.rend(); ++item)
    {
        const CImageOperation& operation = *(*item)->m_pOperation;
        if (!operation.GetInfo().m_bHasOutput)
            continue;
        position = text.find("<node operation='", position) + 1;
        for (const sImageProperty& property : operation.GetInfo().m_vProperties)
        {
            if (property.m_eKind != ePropertyColor)
                continue;
            const std::string tag = "<param name='" + property.m_sName + "'>";
            const std::size_t start = text.find(tag, position);
            const std::size_t end = text.find("</param>", start);
            if (end != std::string::npos)
                text.replace(start + tag.size(), end - start - tag.size(),
                             ExactColor(operation, property));
        }
        if (operation.GetInfo().m_bHasAux)
            WriteExactColors((*item)->m_vBranch, text, position);
    }
}

// The library reads the path of a file that exists relative to the folder, and any other as it is.
void MakePathsAbsolute(CImageOperation& operation, const std::string& folder)
{
    for (const sImageProperty& property : operation.GetInfo().m_vProperties)
    {
        const std::string path =
            property.m_eKind == ePropertyFile ? operation.GetText(property) : std::string();
        if (!path.empty() && !g_path_is_absolute(path.c_str()))
            operation.SetText(property, folder + '/' + path);
    }
}

bool ReadChain(GeglNode* node, const std::string& folder, CGraphChain& chain, int& left)
{
    for (; node; node = gegl_node_get_producer(node, "input", nullptr))
    {
        if (--left < 0)
            return false;
        const std::string name = gegl_node_get_operation(node) ? gegl_node_get_operation(node) : "";
        if (name == "gegl:clone")
            continue;
        auto item = std::make_unique<sGraphItem>();
        item->m_pOperation = CImageOperation::Create(name);
        if (!item->m_pOperation)
            return false;
        item->m_pOperation->ReadFrom(node);
        MakePathsAbsolute(*item->m_pOperation, folder);
        if (!ReadChain(gegl_node_get_producer(node, "aux", nullptr), folder, item->m_vBranch, left))
            return false;
        chain.insert(chain.begin(), std::move(item));
    }
    return true;
}

} // namespace

std::string sGraphText::Write(const CGraphChain& chain, const std::string& folder)
{
    const CRenderGraph graph(CopyEscaped(chain));
    const GPointer<gchar> written(gegl_node_to_xml(graph.GetRoot(), folder.c_str()));
    std::string text = written ? written.get() : "";
    std::size_t position = 0;
    WriteExactColors(chain, text, position);
    return text;
}

bool sGraphText::Read(const std::string& text, const std::string& folder, CGraphChain& chain,
                      std::string& message)
{
    CGeglSession::TakeMessages();
    if (!CheckGraphText(text, message))
        return false;
    const GObjectPointer<GeglNode> graph(gegl_node_new_from_xml(text.c_str(), folder.c_str()));
    CGraphChain read;
    GeglNode* output = graph ? gegl_node_get_output_proxy(graph.get(), "output") : nullptr;
    int left = g_iMaxOperations;
    const bool good =
        output && ReadChain(gegl_node_get_producer(output, "input", nullptr), folder, read, left);
    for (const std::string& warning : CGeglSession::TakeMessages())
        message += (message.empty() ? "" : "\n") + warning;
    if (!good || read.empty())
    {
        message = left < 0 ? "It has too many operations."
                           : "It holds no operation that makes a picture.";
        return false;
    }
    chain = std::move(read);
    return true;
}
