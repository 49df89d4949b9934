// SPDX-License-Identifier: MIT
/// @file
/// The library's version. This is the only place that holds it: the build reads it from here.
#ifndef TOVISDK_VERSION_H
#define TOVISDK_VERSION_H

#include <tovisdk/export.h>

#define TOVISDK_VERSION_MAJOR 0
#define TOVISDK_VERSION_MINOR 1
#define TOVISDK_VERSION_PATCH 0

#ifdef __cplusplus
extern "C" {
#endif

/// Semantic version of the library that is loaded, as in "0.1.0". Static text, never null; it may
/// differ from the macros above, which tell the version of the headers.
TOVISDK_API const char* tovi_version(void);

#ifdef __cplusplus
}
#endif

#endif
