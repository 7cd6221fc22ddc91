#include "operationcatalog.h"

#include "geglhandle.h"
#include "geglsession.h"
#include "propertyreader.h"

#include <gegl.h>

#include <algorithm>

namespace
{

std::string Key(const std::string& operation, const char* key)
{
    const char* text = gegl_operation_get_key(operation.c_str(), key);
    return text ? text : "";
}

// "svg:color-burn" reads "Color burn" where the operation has no title of its own.
std::string TitleFromName(const std::string& name)
{
    std::string title = name.substr(name.find(':') + 1);
    std::replace(title.begin(), title.end(), '-', ' ');
    if (!title.empty())
        title[0] = g_ascii_toupper(title[0]);
    return title;
}

bool HasCategory(const std::string& categories, const std::string& wanted)
{
    return (':' + categories + ':').find(':' + wanted + ':') != std::string::npos;
}

sOperationInfo ReadOperation(const std::string& name)
{
    sOperationInfo info;
    info.m_sName = name;
    info.m_sTitle = Key(name, "title");
    if (info.m_sTitle.empty())
        info.m_sTitle = TitleFromName(name);
    info.m_sDescription = Key(name, "description");
    info.m_sCategories = Key(name, "categories");
    info.m_bForPrograms =
        HasCategory(info.m_sCategories, "hidden") || HasCategory(info.m_sCategories, "programming");
    info.m_bNeedsItsFile = name == "gegl:gif-load";
    info.m_vProperties = ReadProperties(name);

    const GObjectPointer<GeglNode> graph(gegl_node_new());
    GeglNode* node = gegl_node_new_child(graph.get(), "operation", name.c_str(), nullptr);
    info.m_bHasInput = gegl_node_has_pad(node, "input");
    info.m_bHasAux = gegl_node_has_pad(node, "aux");
    info.m_bHasOutput = gegl_node_has_pad(node, "output");
    if (info.m_bHasInput)
        info.m_vInputs.emplace_back("input");
    if (info.m_bHasAux)
        info.m_vInputs.emplace_back("aux");
    for (sImageProperty& property : info.m_vProperties)
        property.m_bSavesFile = property.m_eKind == ePropertyFile && !info.m_bHasOutput;
    return info;
}

std::vector<sOperationInfo> ReadCatalog()
{
    guint count = 0;
    const GPointer<gchar*> names(gegl_list_operations(&count));
    std::vector<sOperationInfo> catalog;
    catalog.reserve(count);
    for (guint i = 0; i < count; ++i)
        catalog.push_back(ReadOperation(names.get()[i]));
    std::sort(catalog.begin(), catalog.end(),
              [](const sOperationInfo& left, const sOperationInfo& right)
              { return left.m_sName < right.m_sName; });
    // Operations that build on others which are not installed complain when they are tried.
    CGeglSession::TakeMessages();
    return catalog;
}

const sOperationInfo* FindExactly(const std::string& name)
{
    const std::vector<sOperationInfo>& catalog = GetOperationCatalog();
    const auto found = std::lower_bound(catalog.begin(), catalog.end(), name,
                                        [](const sOperationInfo& info, const std::string& wanted)
                                        { return info.m_sName < wanted; });
    return found == catalog.end() || found->m_sName != name ? nullptr : &*found;
}

} // namespace

const std::vector<sOperationInfo>& GetOperationCatalog()
{
    static const std::vector<sOperationInfo> catalog = ReadCatalog();
    return catalog;
}

const sOperationInfo* FindOperation(const std::string& name)
{
    if (const sOperationInfo* info = FindExactly(name))
        return info;
    if (!gegl_has_operation(name.c_str()))
        return nullptr;
    const GObjectPointer<GeglNode> graph(gegl_node_new());
    GeglNode* node = gegl_node_new_child(graph.get(), "operation", name.c_str(), nullptr);
    return FindExactly(gegl_node_get_operation(node));
}
