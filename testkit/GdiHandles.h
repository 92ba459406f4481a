#pragma once

#include <windows.h>

#include <vector>

namespace ovo::testkit
{

/// The GDI objects of the process that are alive. Empty on Windows, which does not tell which ones a process
/// has; GdiCounter knows how many there are.
std::vector<HGDIOBJ> gdiHandles();

} // namespace ovo::testkit
