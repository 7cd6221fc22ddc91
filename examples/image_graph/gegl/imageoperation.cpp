#include "imageoperation.h"

#include "geglhandle.h"
#include "numbertext.h"
#include "operationcatalog.h"
#include "propertycopy.h"

#include <gegl.h>

#include <algorithm>

namespace
{

GParamSpec* FindSpec(GeglNode* node, const sImageProperty& property)
{
    return gegl_node_find_property(node, property.m_sName.c_str());
}

const Babl* ColorFormat()
{
    return babl_format("R'G'B'A double");
}

std::string EnumText(const GParamSpec* spec, const GValue* value)
{
    const GEnumValue* entry =
        g_enum_get_value(G_PARAM_SPEC_ENUM(spec)->enum_class, g_value_get_enum(value));
    return entry ? entry->value_nick : "";
}

sWriteResult Refuse(const std::string& message)
{
    return {sWriteResult::eRefused, message};
}

bool SetEnum(const GParamSpec* spec, const std::string& text, GValue* value)
{
    const GEnumValue* entry =
        g_enum_get_value_by_nick(G_PARAM_SPEC_ENUM(spec)->enum_class, text.c_str());
    if (entry)
        g_value_set_enum(value, entry->value);
    return entry != nullptr;
}

void SetNumber(ePropertyKind kind, double number, GValue* value)
{
    if (kind == ePropertyNumber)
        g_value_set_double(value, number);
    else if (kind == ePropertyInteger)
        g_value_set_int(value, static_cast<gint>(number));
    else
        g_value_set_uint(value, static_cast<guint>(number));
}

} // namespace

std::unique_ptr<CImageOperation> CImageOperation::Create(const std::string& name)
{
    const sOperationInfo* info = FindOperation(name);
    return std::unique_ptr<CImageOperation>(info ? new CImageOperation(*info) : nullptr);
}

CImageOperation::CImageOperation(const sOperationInfo& info)
    : m_info(info), m_pGraph(gegl_node_new()),
      m_pNode(gegl_node_new_child(m_pGraph, "operation", info.m_sName.c_str(), nullptr))
{
    CQuietNode::Block(m_pNode);
    for (const sImageProperty& property : info.m_vProperties)
    {
        if (!property.m_bOpensFile)
            continue;
        CGValue value(FindSpec(m_pNode, property)->value_type);
        gegl_node_get_property(m_pNode, property.m_sName.c_str(), value.Get());
        const gchar* path = g_value_get_string(value.Get());
        m_mapPaths[&property] = path ? path : "";
    }
}

CImageOperation::~CImageOperation()
{
    g_object_unref(m_pGraph);
}

std::string CImageOperation::GetText(const sImageProperty& property) const
{
    if (property.m_bOpensFile)
        return m_mapPaths.at(&property);
    GParamSpec* spec = FindSpec(m_pNode, property);
    CGValue value(spec->value_type);
    gegl_node_get_property(m_pNode, property.m_sName.c_str(), value.Get());
    switch (property.m_eKind)
    {
    case ePropertyNumber:
        return NumberToText(g_value_get_double(value.Get()));
    case ePropertyInteger:
        return std::to_string(g_value_get_int(value.Get()));
    case ePropertySeed:
        return std::to_string(g_value_get_uint(value.Get()));
    case ePropertyBool:
        return g_value_get_boolean(value.Get()) ? "true" : "false";
    case ePropertyEnum:
        return EnumText(spec, value.Get());
    case ePropertyText:
    case ePropertyFile:
    {
        const gchar* text = g_value_get_string(value.Get());
        return text ? text : "";
    }
    case ePropertyColor:
    case ePropertyOther:
        break;
    }
    return {};
}

sWriteResult CImageOperation::SetText(const sImageProperty& property, const std::string& text)
{
    if (property.m_bReadOnly)
        return Refuse(property.m_sLabel + " cannot be changed.");
    GParamSpec* spec = FindSpec(m_pNode, property);
    CGValue value(spec->value_type);
    sWriteResult result;
    switch (property.m_eKind)
    {
    case ePropertyNumber:
    case ePropertyInteger:
    case ePropertySeed:
    {
        double number = 0;
        result = ReadNumber(property, text, number);
        SetNumber(property.m_eKind, number, value.Get());
        break;
    }
    case ePropertyBool:
        g_value_set_boolean(value.Get(), text == "true");
        break;
    case ePropertyEnum:
        if (!SetEnum(spec, text, value.Get()))
            result = Refuse(property.m_sLabel + " has no choice '" + text + "'.");
        break;
    case ePropertyText:
    case ePropertyFile:
        if (!g_utf8_validate(text.c_str(), -1, nullptr))
            result = Refuse(property.m_sLabel + ": the text is not valid UTF-8.");
        else
            g_value_set_string(value.Get(), text.c_str());
        break;
    case ePropertyColor:
    case ePropertyOther:
        return Refuse(property.m_sLabel + " is not edited as text.");
    }
    if (result.m_eOutcome != sWriteResult::eRefused)
        SetValue(property, CImageValue(*value.Get()));
    return result;
}

CImageOperation::CColor CImageOperation::GetColor(const sImageProperty& property) const
{
    CColor pixel{};
    GeglColor* color = nullptr;
    gegl_node_get(m_pNode, property.m_sName.c_str(), &color, nullptr);
    const GObjectPointer<GeglColor> owner(color);
    if (color)
        gegl_color_get_pixel(color, ColorFormat(), pixel.data());
    return pixel;
}

void CImageOperation::SetColor(const sImageProperty& property, const CColor& color)
{
    // A new object: the old one may be part of a picture that is being rendered.
    const GObjectPointer<GeglColor> value(gegl_color_new("black"));
    gegl_color_set_pixel(value.get(), ColorFormat(), color.data());
    m_pSnapshot.reset();
    gegl_node_set(m_pNode, property.m_sName.c_str(), value.get(), nullptr);
}

std::string CImageOperation::GetComponent(const sImageProperty& property, int component) const
{
    return NumberToText(RoundToDigits(GetColor(property).at(component), 4));
}

sWriteResult CImageOperation::SetComponent(const sImageProperty& property, int component,
                                           const std::string& text)
{
    static const std::array<const char*, 4> names{"red", "green", "blue", "alpha"};
    sImageProperty part;
    part.m_sLabel = property.m_sLabel + " (" + names.at(component) + ')';
    part.m_eKind = ePropertyNumber;
    part.m_dMax = 1;
    double number = 0;
    const sWriteResult result = ReadNumber(part, text, number);
    // A text that shows what is there already would cut the digits that are not shown.
    if (result.m_eOutcome != sWriteResult::eRefused && text != GetComponent(property, component))
    {
        CColor color = GetColor(property);
        color.at(component) = number;
        SetColor(property, color);
    }
    return result;
}

void CImageOperation::Reset()
{
    const std::unique_ptr<CImageOperation> fresh = Create(m_info.m_sName);
    m_pSnapshot.reset();
    CopyProperties(fresh->m_pNode, m_pNode);
    m_mapPaths = fresh->m_mapPaths;
}

CImageValue CImageOperation::GetValue(const sImageProperty& property) const
{
    CGValue value(FindSpec(m_pNode, property)->value_type);
    if (property.m_bOpensFile)
        g_value_set_string(value.Get(), m_mapPaths.at(&property).c_str());
    else
        gegl_node_get_property(m_pNode, property.m_sName.c_str(), value.Get());
    return CImageValue(*value.Get());
}

void CImageOperation::SetValue(const sImageProperty& property, const CImageValue& value)
{
    m_pSnapshot.reset();
    if (property.m_bOpensFile)
        m_mapPaths[&property] = g_value_get_string(value.Get());
    else
        gegl_node_set_property(m_pNode, property.m_sName.c_str(), value.Get());
}

std::unique_ptr<CImageOperation> CImageOperation::Copy() const
{
    std::unique_ptr<CImageOperation> copy = Create(m_info.m_sName);
    CopyProperties(m_pNode, copy->m_pNode);
    copy->m_mapPaths = m_mapPaths;
    return copy;
}

std::shared_ptr<const CImageOperation> CImageOperation::GetSnapshot() const
{
    if (!m_pSnapshot)
        m_pSnapshot = Copy();
    return m_pSnapshot;
}

void CImageOperation::WriteTo(GeglNode* node) const
{
    CopyProperties(m_pNode, node);
}

void CImageOperation::WritePathsTo(GeglNode* node) const
{
    for (const auto& [property, path] : m_mapPaths)
        if (!path.empty())
            gegl_node_set(node, property->m_sName.c_str(), path.c_str(), nullptr);
}
