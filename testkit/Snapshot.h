#pragma once

#include <string>

namespace ovo::testkit
{

/// Writes what a person needs to see why a test is stuck into the folder `failures` beside the program's
/// folder: the reason and the tree of windows as text, the screen as a PNG. Also prints the text. Any
/// thread; needs no answer from the windows.
void takeSnapshot(const std::string& reason);

/// The windows of this process as an indented list: class, text, place, state, and who has focus and capture.
std::string describeWindows();

} // namespace ovo::testkit
