/// Marks what ovosvg11.dll exports.
#pragma once

#ifdef OVOSVG_BUILD
#define OVOSVG_API __declspec(dllexport)
#else
#define OVOSVG_API __declspec(dllimport)
#endif
