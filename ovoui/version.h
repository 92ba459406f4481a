/// The version of the library that a program is compiled against. The build takes its own from here.
#pragma once

#define OVOUI_VERSION_MAJOR 11
#define OVOUI_VERSION_MINOR 0
#define OVOUI_VERSION_PATCH 0

/// One number to compare, which grows with every version: #if OVOUI_VERSION >= OVOUI_VERSION_NUMBER(11, 2, 0)
#define OVOUI_VERSION_NUMBER(major, minor, patch) ((major)*1000000 + (minor)*1000 + (patch))
#define OVOUI_VERSION OVOUI_VERSION_NUMBER(OVOUI_VERSION_MAJOR, OVOUI_VERSION_MINOR, OVOUI_VERSION_PATCH)

#define OVOUI_VERSION_STRING "11.0.0"
