/// What a soak run has reached: pages and kinds of controls, and how often.
#pragma once

#include <map>
#include <string>

struct Reach
{
    std::map<std::wstring, int> pages;    ///< inputs while the page was open
    std::map<std::wstring, int> controls; ///< inputs, by window class
    std::map<std::wstring, int> actions;
    int modal = 0; ///< inputs while a window waited for an answer
};
