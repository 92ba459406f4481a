/// Which GDI objects are alive, for the report of a run in which their number grew.
#pragma once

#include <windows.h>

#include <map>
#include <string>

/// Such as "bitmap 16 x 16 x 32" or "brush of style 0, 00ff00".
std::string gdiDescription(HGDIOBJ object);

/// Descriptions of the living objects, and how many there are of each. Empty on Windows, which does
/// not tell which objects a process has.
std::map<std::string, int> gdiObjects();

/// What there is more of in `now` than in `before`, one a line.
std::string gdiGrowth(const std::map<std::string, int>& before, const std::map<std::string, int>& now);
