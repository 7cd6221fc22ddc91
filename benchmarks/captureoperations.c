/* Captures a real panel: the parameters of every GEGL operation, in the format of ReadRowPlan.
 *
 * cc captureoperations.c $(pkg-config --cflags --libs gegl-0.4) && ./a.out > geglpanel.tsv
 */

#include <gegl-plugin.h>

static void PrintValue(const GValue* value)
{
    GValue text = G_VALUE_INIT;
    g_value_init(&text, G_TYPE_STRING);
    if (g_value_transform(value, &text) && g_value_get_string(&text))
    {
        gchar* line = g_strdelimit(g_strdup(g_value_get_string(&text)), "\t\n\r", ' ');
        g_print("%s", line);
        g_free(line);
    }
    g_value_unset(&text);
}

static void PrintRow(GParamSpec* property)
{
    const char* name = g_param_spec_get_nick(property);
    const GValue* value = g_param_spec_get_default_value(property);
    if (G_IS_PARAM_SPEC_BOOLEAN(property))
        g_print("bool\t%s\t%d", name, g_value_get_boolean(value) ? 1 : 0);
    else if (G_IS_PARAM_SPEC_ENUM(property))
    {
        const GEnumClass* choices = G_PARAM_SPEC_ENUM(property)->enum_class;
        guint chosen = 0;
        for (guint i = 0; i < choices->n_values; ++i)
        {
            if (choices->values[i].value == g_value_get_enum(value))
                chosen = i;
        }
        g_print("enum\t%s\t%u", name, chosen);
        for (guint i = 0; i < choices->n_values; ++i)
            g_print("\t%s", choices->values[i].value_nick);
    }
    else
    {
        g_print("text\t%s\t", name);
        PrintValue(value);
    }
    g_print("\n");
}

int main(int argc, char** argv)
{
    gegl_init(&argc, &argv);
    guint count = 0;
    gchar** operations = gegl_list_operations(&count);
    for (guint i = 0; i < count; ++i)
    {
        guint rows = 0;
        GParamSpec** properties = gegl_operation_list_properties(operations[i], &rows);
        gboolean titled = FALSE;
        for (guint row = 0; row < rows; ++row)
        {
            const gboolean shown = (properties[row]->flags & G_PARAM_WRITABLE) != 0 &&
                                   !G_IS_PARAM_SPEC_OBJECT(properties[row]) &&
                                   !G_IS_PARAM_SPEC_POINTER(properties[row]);
            if (shown && !titled)
                g_print("group\t%s\n", operations[i]);
            titled |= shown;
            if (shown)
                PrintRow(properties[row]);
        }
        g_free(properties);
    }
    g_free(operations);
    gegl_exit();
    return 0;
}
