/// Marks what ovocor11.dll exports. The units without windows also build natively, as a static library.
#pragma once

#if !defined(_WIN32)
#define OVOCOR_API
#elif defined(OVOCOR_BUILD)
#define OVOCOR_API __declspec(dllexport)
#else
#define OVOCOR_API __declspec(dllimport)
#endif
