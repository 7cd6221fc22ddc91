#pragma once

#include <gegl.h>
#include <glib-object.h>

#include <memory>

/// Owners of what the C library hands out. Included by sources of this folder only.
struct sFree
{
    void operator()(gpointer memory) const { g_free(memory); }
};

struct sUnref
{
    void operator()(gpointer object) const { g_object_unref(object); }
};

template <class T>
using GPointer = std::unique_ptr<T, sFree>;

template <class T>
using GObjectPointer = std::unique_ptr<T, sUnref>;

/// A GValue that is unset at the end of its scope.
class CGValue
{
public:
    explicit CGValue(GType type) { g_value_init(&m_value, type); }
    ~CGValue() { g_value_unset(&m_value); }
    CGValue(const CGValue&) = delete;
    CGValue& operator=(const CGValue&) = delete;
    GValue* Get() { return &m_value; }

private:
    GValue m_value = G_VALUE_INIT;
};

/// While it lives, nothing is worked out because values of the node change: no file is opened, no
/// text laid out. For nodes whose picture nobody looks at yet.
class CQuietNode
{
public:
    explicit CQuietNode(GeglNode* node) : m_pNode(node) { Block(node); }
    ~CQuietNode()
    {
        g_signal_handlers_unblock_matched(gegl_node_get_gegl_operation(m_pNode),
                                          G_SIGNAL_MATCH_DATA, 0, 0, nullptr, nullptr, m_pNode);
    }
    CQuietNode(const CQuietNode&) = delete;
    CQuietNode& operator=(const CQuietNode&) = delete;

    /// The same for the rest of the node's life.
    static void Block(GeglNode* node)
    {
        g_signal_handlers_block_matched(gegl_node_get_gegl_operation(node), G_SIGNAL_MATCH_DATA, 0,
                                        0, nullptr, nullptr, node);
    }

private:
    GeglNode* m_pNode;
};
