#include "paramtext.h"

#include "geglhandle.h"

#include <gegl-paramspecs.h>

#include <algorithm>
#include <cstdlib>

namespace
{

bool IsYes(const std::string& text)
{
    static const std::array<const char*, 8> words{"true", "TRUE", "YES", "yes",
                                                  "y",    "Y",    "1",   "on"};
    return std::find(words.begin(), words.end(), text) != words.end();
}

// Old files have the names of the choices instead of their nicknames.
std::string OldNickname(std::string text)
{
    for (char& c : text)
        c = c == ' ' ? '-' : g_ascii_tolower(c);
    return text;
}

bool SetEnum(const GParamSpec* spec, const std::string& text, GValue* value)
{
    GEnumClass* choices = G_PARAM_SPEC_ENUM(spec)->enum_class;
    const GEnumValue* choice = g_enum_get_value_by_nick(choices, text.c_str());
    if (!choice)
        choice = g_enum_get_value_by_nick(choices, OldNickname(text).c_str());
    if (choice)
        g_value_set_enum(value, choice->value);
    return choice != nullptr;
}

std::string AbsolutePath(const std::string& path, const std::string& folder)
{
    return path.empty() || g_path_is_absolute(path.c_str()) ? path : folder + '/' + path;
}

GeglCurve* MakeCurve(const sParamText& param)
{
    GeglCurve* curve = gegl_curve_new(param.m_bounds[0], param.m_bounds[1]);
    for (const auto& point : param.m_vPoints)
        gegl_curve_add_point(curve, point[0], point[1]);
    return curve;
}

GeglPath* MakePath(const std::string& text)
{
    GeglPath* path = gegl_path_new();
    gegl_path_parse_string(path, text.c_str());
    return path;
}

// False for a type that files do not hold.
bool SetObject(GParamSpec* spec, const sParamText& param, GValue* value)
{
    if (spec->value_type == GEGL_TYPE_COLOR)
        g_value_take_object(value, gegl_color_new(param.m_sText.c_str()));
    else if (spec->value_type == GEGL_TYPE_CURVE && param.m_bIsCurve)
        g_value_take_object(value, MakeCurve(param));
    else if (spec->value_type == GEGL_TYPE_PATH)
        g_value_take_object(value, MakePath(param.m_sText));
    else if (GEGL_IS_PARAM_SPEC_FORMAT(spec) && babl_format_exists(param.m_sText.c_str()))
        g_value_set_pointer(value, const_cast<Babl*>(babl_format(param.m_sText.c_str())));
    else
        return false;
    return true;
}

bool SetPlain(const GParamSpec* spec, const sParamText& param, GValue* value)
{
    const char* text = param.m_sText.c_str();
    if (spec->value_type == G_TYPE_STRING)
        g_value_set_string(value, text);
    else if (spec->value_type == G_TYPE_INT)
        g_value_set_int(value, static_cast<gint>(std::strtol(text, nullptr, 10)));
    else if (spec->value_type == G_TYPE_UINT)
        g_value_set_uint(value, static_cast<guint>(std::strtoul(text, nullptr, 10)));
    else if (spec->value_type == G_TYPE_DOUBLE)
        g_value_set_double(value, g_ascii_strtod(text, nullptr));
    else if (spec->value_type == G_TYPE_BOOLEAN)
        g_value_set_boolean(value, IsYes(param.m_sText));
    else
        return false;
    return true;
}

} // namespace

std::string SetParam(CImageOperation& operation, const sParamText& param, const std::string& folder)
{
    const sImageProperty* property = operation.GetInfo().FindProperty(param.m_sName);
    if (property && property->m_bOpensFile)
        return operation
            .SetText(*property, property->m_eKind == ePropertyFile
                                    ? AbsolutePath(param.m_sText, folder)
                                    : param.m_sText)
            .m_sMessage;
    const std::string& title = operation.GetInfo().m_sTitle;
    GParamSpec* spec = gegl_node_find_property(operation.GetNode(), param.m_sName.c_str());
    if (!spec)
        return title + " has no parameter named " + param.m_sName;
    if (!(spec->flags & G_PARAM_WRITABLE))
        return {};
    CGValue value(spec->value_type);
    if (G_IS_PARAM_SPEC_ENUM(spec))
    {
        if (!SetEnum(spec, param.m_sText, value.Get()))
            return title + ": " + param.m_sName + " has no choice '" + param.m_sText + '\'';
    }
    else if (!SetPlain(spec, param, value.Get()) && !SetObject(spec, param, value.Get()))
        return title + ": " + param.m_sName + " cannot be read from a file";
    gegl_node_set_property(operation.GetNode(), param.m_sName.c_str(), value.Get());
    return {};
}
