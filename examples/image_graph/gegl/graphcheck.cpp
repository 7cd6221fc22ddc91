#include "graphcheck.h"

#include "operationcatalog.h"

#include <glib.h>

#include <cstring>

namespace
{

constexpr const char* g_apElements[] = {"gegl", "node", "clone", "params", "param"};

GError* Complain(GMarkupParseContext* context, const std::string& problem)
{
    int line = 0;
    g_markup_parse_context_get_position(context, &line, nullptr);
    return g_error_new(G_MARKUP_ERROR, G_MARKUP_ERROR_INVALID_CONTENT, "line %d: %s", line,
                       problem.c_str());
}

bool IsKnown(const char* element)
{
    for (const char* known : g_apElements)
        if (std::strcmp(known, element) == 0)
            return true;
    return false;
}

void CheckOperation(GMarkupParseContext* context, const std::string& name, GError** error)
{
    const sOperationInfo* info = FindOperation(name);
    if (!info)
        *error = Complain(context, "the operation '" + name + "' is not installed");
    else if (info->m_bNeedsItsFile)
        *error =
            Complain(context, "the operation '" + name +
                                  "' ends the program when its file is missing; use gegl:load");
}

void OnStart(GMarkupParseContext* context, const gchar* element, const gchar** names,
             const gchar** values, gpointer data, GError** error)
{
    bool& isFirst = *static_cast<bool*>(data);
    if (isFirst && std::strcmp(element, "gegl") != 0)
        *error = Complain(context, "this is not a graph (it starts with <" + std::string(element) +
                                       ">, a graph starts with <gegl>)");
    else if (!IsKnown(element))
        *error = Complain(context, "<" + std::string(element) + "> is not part of a graph");
    isFirst = false;
    for (; !*error && *names; ++names, ++values)
        if (std::strcmp(*names, "operation") == 0)
            CheckOperation(context, *values, error);
}

} // namespace

bool CheckGraphText(const std::string& text, std::string& message)
{
    if (text.find_first_not_of(" \t\r\n") == std::string::npos)
    {
        message = "The file is empty.";
        return false;
    }
    bool isFirst = true;
    const GMarkupParser parser{OnStart, nullptr, nullptr, nullptr, nullptr};
    GMarkupParseContext* context =
        g_markup_parse_context_new(&parser, GMarkupParseFlags(0), &isFirst, nullptr);
    GError* error = nullptr;
    const bool good = g_markup_parse_context_parse(context, text.c_str(),
                                                   static_cast<gssize>(text.size()), &error) &&
                      g_markup_parse_context_end_parse(context, &error);
    if (!good)
        message = error->message;
    g_clear_error(&error);
    g_markup_parse_context_free(context);
    return good;
}
