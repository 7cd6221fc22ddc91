#include "nodevalues.h"

#include "geglhandle.h"

#include <gegl-paramspecs.h>

#include <algorithm>
#include <array>

namespace
{

bool IsText(const sImageProperty& property)
{
    return property.m_eKind == ePropertyText || property.m_eKind == ePropertyFile;
}

// Control characters have no place in a file of this kind, escaped or not.
std::string WithoutControls(std::string text)
{
    const auto isControl = [](char c)
    { return static_cast<unsigned char>(c) < ' ' && c != '\t' && c != '\n' && c != '\r'; };
    text.erase(std::remove_if(text.begin(), text.end(), isControl), text.end());
    return text;
}

std::string Escaped(const std::string& text)
{
    const GPointer<gchar> markup(g_markup_escape_text(WithoutControls(text).c_str(), -1));
    std::string escaped = markup.get();
    // A reader of XML takes this one for the end of a line.
    for (std::size_t at = escaped.find('\r'); at != std::string::npos; at = escaped.find('\r', at))
        escaped.replace(at, 1, "&#13;");
    return escaped;
}

std::string RelativeTo(const std::string& folder, const std::string& path)
{
    const std::string start = folder + '/';
    return path.rfind(start, 0) == 0 ? path.substr(start.size()) : path;
}

std::string Exact(double number)
{
    std::array<gchar, G_ASCII_DTOSTR_BUF_SIZE> digits{};
    return g_ascii_dtostr(digits.data(), static_cast<gint>(digits.size()), number);
}

std::string ColorText(GeglColor* color)
{
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

std::string CurveText(GeglCurve* curve)
{
    gdouble low = 0;
    gdouble high = 0;
    gegl_curve_get_y_bounds(curve, &low, &high);
    std::string text = "<curve ymin='" + Exact(low) + "' ymax='" + Exact(high) + "'>";
    for (guint i = 0; i < gegl_curve_num_points(curve); ++i)
    {
        gdouble x = 0;
        gdouble y = 0;
        gegl_curve_get_point(curve, i, &x, &y);
        text += "<curve-point x='" + Exact(x) + "' y='" + Exact(y) + "'/>";
    }
    return text + "</curve>";
}

// The objects and formats that files hold; nothing for others.
std::string OtherText(const GValue* value)
{
    if (G_VALUE_HOLDS_POINTER(value))
    {
        const auto* format = static_cast<const Babl*>(g_value_get_pointer(value));
        return format ? Escaped(babl_get_name(format)) : std::string();
    }
    gpointer object = G_VALUE_HOLDS_OBJECT(value) ? g_value_get_object(value) : nullptr;
    if (object && GEGL_IS_COLOR(object))
        return ColorText(GEGL_COLOR(object));
    if (object && GEGL_IS_CURVE(object))
        return CurveText(GEGL_CURVE(object));
    if (object && GEGL_IS_PATH(object))
    {
        const GPointer<gchar> path(gegl_path_to_string(GEGL_PATH(object)));
        return Escaped(path.get());
    }
    return {};
}

std::string Markup(const CImageOperation& operation, const sImageProperty& property,
                   const std::string& folder)
{
    switch (property.m_eKind)
    {
    case ePropertyNumber:
        return Exact(g_value_get_double(operation.GetValue(property).Get()));
    case ePropertyFile:
        return Escaped(RelativeTo(folder, operation.GetText(property)));
    case ePropertyColor:
        return OtherText(operation.GetValue(property).Get());
    case ePropertyOther:
    {
        // Only formats are pointers that tell what they are.
        GParamSpec* spec = gegl_node_find_property(operation.GetNode(), property.m_sName.c_str());
        const bool isBare = spec->value_type == G_TYPE_POINTER && !GEGL_IS_PARAM_SPEC_FORMAT(spec);
        return isBare ? std::string() : OtherText(operation.GetValue(property).Get());
    }
    default:
        return Escaped(operation.GetText(property));
    }
}

} // namespace

sNodeText WriteValues(const CImageOperation& operation, const std::string& folder)
{
    sNodeText text;
    const std::unique_ptr<CImageOperation> fresh =
        CImageOperation::Create(operation.GetInfo().m_sName);
    for (const sImageProperty& property : operation.GetInfo().m_vProperties)
    {
        if (property.m_bReadOnly)
            continue;
        const std::string markup = Markup(operation, property, folder);
        // An element without a text leaves the first value as it is; an attribute does not.
        if (!markup.empty())
            text.m_vParams.push_back("<param name='" + property.m_sName + "'>" + markup +
                                     "</param>");
        else if (IsText(property) && !fresh->GetText(property).empty())
            text.m_sAttributes += ' ' + property.m_sName + "=''";
    }
    return text;
}
