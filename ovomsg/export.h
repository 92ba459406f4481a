/// Marks what ovomsg11.dll exports.
#pragma once

#ifdef OVOMSG_BUILD
#define OVOMSG_API __declspec(dllexport)
#else
#define OVOMSG_API __declspec(dllimport)
#endif
