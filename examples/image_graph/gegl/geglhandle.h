#pragma once

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
