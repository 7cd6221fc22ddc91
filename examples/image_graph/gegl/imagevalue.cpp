#include "imagevalue.h"

#include "geglhandle.h"

#include <array>
#include <cstring>
#include <string>

namespace
{

std::array<double, 4> Pixel(GeglColor* color)
{
    std::array<double, 4> pixel{};
    gegl_color_get_pixel(color, babl_format("RGBA double"), pixel.data());
    return pixel;
}

std::string Text(GeglPath* path)
{
    const GPointer<gchar> text(gegl_path_to_string(path));
    return text.get();
}

bool AreSame(gpointer left, gpointer right)
{
    if (left == right || !left || !right)
        return left == right;
    if (GEGL_IS_COLOR(left) && GEGL_IS_COLOR(right))
        return Pixel(GEGL_COLOR(left)) == Pixel(GEGL_COLOR(right));
    if (GEGL_IS_PATH(left) && GEGL_IS_PATH(right))
        return Text(GEGL_PATH(left)) == Text(GEGL_PATH(right));
    return false;
}

} // namespace

CImageValue::CImageValue(const GValue& value)
{
    auto* copy = new GValue G_VALUE_INIT;
    g_value_init(copy, G_VALUE_TYPE(&value));
    g_value_copy(&value, copy);
    m_pValue = std::shared_ptr<const GValue>(copy,
                                             [copy](const GValue*)
                                             {
                                                 g_value_unset(copy);
                                                 delete copy;
                                             });
}

bool CImageValue::operator==(const CImageValue& other) const
{
    if (!m_pValue || !other.m_pValue)
        return m_pValue == other.m_pValue;
    if (G_VALUE_HOLDS_STRING(m_pValue.get()))
        return g_strcmp0(g_value_get_string(m_pValue.get()),
                         g_value_get_string(other.m_pValue.get())) == 0;
    if (G_VALUE_HOLDS_OBJECT(m_pValue.get()) && G_VALUE_HOLDS_OBJECT(other.m_pValue.get()))
        return AreSame(g_value_get_object(m_pValue.get()),
                       g_value_get_object(other.m_pValue.get()));
    return std::memcmp(m_pValue->data, other.m_pValue->data, sizeof(m_pValue->data)) == 0;
}
