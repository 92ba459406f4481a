#include <ovoui/frame/core/LineEnds.h>

#include <ovoui/frame/core/MessageBoxLayout.h>

#include <ovocor/TextLineIterator.h>

#include <vector>

namespace ovoui::frame
{

std::wstring withWindowsLineEnds(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    for (TextLineIterator line(text); line; ++line)
        lines.emplace_back(*line);
    return joinLines(lines);
}

} // namespace ovoui::frame
