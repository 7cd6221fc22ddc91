#pragma once

/// \file
/// Marks what the library offers to its hosts. Everything else stays hidden inside the library.
///
/// INSPECTOR_STATIC is defined for a static build and by the targets that use one;
/// INSPECTOR_BUILD is defined only while the library itself is compiled.

/// \def INSPECTOR_EXPORT
/// Stands in front of every class that crosses the boundary of the library.

#if defined(INSPECTOR_STATIC)
#define INSPECTOR_EXPORT
#elif defined(_WIN32)
#if defined(INSPECTOR_BUILD)
#define INSPECTOR_EXPORT __declspec(dllexport)
#else
#define INSPECTOR_EXPORT __declspec(dllimport)
#endif
#else
#define INSPECTOR_EXPORT __attribute__((visibility("default")))
#endif
