#include "propertycopy.h"

#include "geglhandle.h"

#include <gegl-paramspecs.h>
#include <gegl.h>

namespace
{

bool CanCopy(const GParamSpec* spec)
{
    const GParamFlags wanted = G_PARAM_READWRITE;
    if ((spec->flags & wanted) != wanted || (spec->flags & G_PARAM_CONSTRUCT_ONLY))
        return false;
    if (GEGL_IS_PARAM_SPEC_FILE_PATH(spec) || GEGL_IS_PARAM_SPEC_URI(spec))
        return false;
    return spec->value_type != G_TYPE_POINTER || GEGL_IS_PARAM_SPEC_FORMAT(spec);
}

GeglPath* DuplicatePath(GeglPath* path)
{
    GeglPath* copy = gegl_path_new();
    const GPointer<gchar> text(gegl_path_to_string(path));
    gegl_path_parse_string(copy, text.get());
    return copy;
}

// Replaces an object that its operation may write to by a copy of it.
void Unshare(GValue* value)
{
    if (!G_VALUE_HOLDS_OBJECT(value) || !g_value_get_object(value))
        return;
    gpointer object = g_value_get_object(value);
    if (GEGL_IS_COLOR(object))
        g_value_take_object(value, gegl_color_duplicate(GEGL_COLOR(object)));
    else if (GEGL_IS_PATH(object))
        g_value_take_object(value, DuplicatePath(GEGL_PATH(object)));
    else if (GEGL_IS_CURVE(object))
        g_value_take_object(value, gegl_curve_duplicate(GEGL_CURVE(object)));
}

} // namespace

void CopyProperties(GeglNode* source, GeglNode* target)
{
    const CQuietNode quiet(target);
    guint count = 0;
    const GPointer<GParamSpec*> specs(
        gegl_operation_list_properties(gegl_node_get_operation(source), &count));
    for (guint i = 0; i < count; ++i)
    {
        const GParamSpec* spec = specs.get()[i];
        if (!CanCopy(spec))
            continue;
        CGValue value(spec->value_type);
        gegl_node_get_property(source, spec->name, value.Get());
        Unshare(value.Get());
        gegl_node_set_property(target, spec->name, value.Get());
    }
}
