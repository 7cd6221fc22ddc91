#include "propertyreader.h"

#include "geglhandle.h"

#include <gegl-paramspecs.h>
#include <gegl.h>

#include <limits>

namespace
{

std::string OrEmpty(const char* text)
{
    return text ? text : "";
}

std::string Key(const std::string& operation, GParamSpec* spec, const char* key)
{
    return OrEmpty(gegl_operation_get_property_key(operation.c_str(), spec->name, key));
}

void ReadNumber(GParamSpec* spec, sImageProperty& property)
{
    if (G_IS_PARAM_SPEC_DOUBLE(spec))
    {
        property.m_eKind = ePropertyNumber;
        property.m_dMin = G_PARAM_SPEC_DOUBLE(spec)->minimum;
        property.m_dMax = G_PARAM_SPEC_DOUBLE(spec)->maximum;
    }
    else if (GEGL_IS_PARAM_SPEC_SEED(spec))
    {
        property.m_eKind = ePropertySeed;
        property.m_dMin = 0;
        property.m_dMax = std::numeric_limits<guint>::max();
    }
    else if (G_IS_PARAM_SPEC_INT(spec))
    {
        property.m_eKind = ePropertyInteger;
        property.m_dMin = G_PARAM_SPEC_INT(spec)->minimum;
        property.m_dMax = G_PARAM_SPEC_INT(spec)->maximum;
    }
}

void ReadEnum(GParamSpec* spec, sImageProperty& property)
{
    property.m_eKind = ePropertyEnum;
    const GEnumClass* values = G_PARAM_SPEC_ENUM(spec)->enum_class;
    for (guint i = 0; i < values->n_values; ++i)
        property.m_vNicknames.push_back(OrEmpty(values->values[i].value_nick));
}

sImageProperty ReadProperty(const std::string& operation, GParamSpec* spec)
{
    sImageProperty property;
    property.m_sName = spec->name;
    property.m_sLabel = OrEmpty(g_param_spec_get_nick(spec));
    property.m_sHelp = OrEmpty(g_param_spec_get_blurb(spec));
    ReadNumber(spec, property);
    if (G_IS_PARAM_SPEC_BOOLEAN(spec))
        property.m_eKind = ePropertyBool;
    else if (G_IS_PARAM_SPEC_ENUM(spec))
        ReadEnum(spec, property);
    else if (GEGL_IS_PARAM_SPEC_COLOR(spec))
        property.m_eKind = ePropertyColor;
    else if (GEGL_IS_PARAM_SPEC_FILE_PATH(spec))
        property.m_eKind = ePropertyFile;
    else if (spec->value_type == G_TYPE_STRING)
        property.m_eKind = ePropertyText;
    property.m_bOpensFile = GEGL_IS_PARAM_SPEC_FILE_PATH(spec) || GEGL_IS_PARAM_SPEC_URI(spec);
    property.m_bMultiLine = Key(operation, spec, "multiline") == "true";
    // What an operation only reports is writable all the same; its description tells.
    property.m_bReadOnly = !(spec->flags & G_PARAM_WRITABLE) ||
                           property.m_sHelp.find("read only") != std::string::npos ||
                           property.m_sHelp.find("read-only") != std::string::npos;
    return property;
}

} // namespace

std::vector<sImageProperty> ReadProperties(const std::string& operation)
{
    std::vector<sImageProperty> properties;
    guint count = 0;
    const GPointer<GParamSpec*> specs(gegl_operation_list_properties(operation.c_str(), &count));
    for (guint i = 0; i < count; ++i)
    {
        GParamSpec* spec = specs.get()[i];
        if (spec->flags & G_PARAM_READABLE)
            properties.push_back(ReadProperty(operation, spec));
    }
    return properties;
}
