/// Marks what ovoui.dll exports.
#pragma once

#ifdef OVOUI_BUILD
#define OVOUI_API __declspec(dllexport)
#else
#define OVOUI_API __declspec(dllimport)
#endif
