/// The version of the library that a program is compiled against. The build takes its own from here.
#pragma once

/// Grows when hosts must be built anew or changed.
#define OVOUI_VERSION_MAJOR 11
/// Grows when something is added.
#define OVOUI_VERSION_MINOR 0
/// Grows when something is mended.
#define OVOUI_VERSION_PATCH 0

/// One number to compare, which grows with every version: #if OVOUI_VERSION >= OVOUI_VERSION_NUMBER(11, 2, 0)
#define OVOUI_VERSION_NUMBER(major, minor, patch) ((major)*1000000 + (minor)*1000 + (patch))
/// The version as one number.
#define OVOUI_VERSION OVOUI_VERSION_NUMBER(OVOUI_VERSION_MAJOR, OVOUI_VERSION_MINOR, OVOUI_VERSION_PATCH)

/// The version as a text.
#define OVOUI_VERSION_STRING "11.0.0"
