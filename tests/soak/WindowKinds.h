/// Which windows are alive, for the report of a run in which their number grew.
#pragma once

#include <map>
#include <string>

/// The classes of the calling thread's windows, children and message-only ones included, and how many windows
/// there are of each.
std::map<std::string, int> windowKinds();
