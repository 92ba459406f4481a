/// Marks what ovoui.dll exports of units that also build natively, as a static library.
#pragma once

#ifdef _WIN32
#include <ovoui/export.h>
#define OVOUI_UNIT_API OVOUI_API
#else
#define OVOUI_UNIT_API
#endif
