#include <ovoui/tree/core/TreePath.h>

namespace ovoui::tree
{

namespace
{

constexpr wchar_t kSeparator = L'/';
constexpr wchar_t kEscape = L'\\';
constexpr wchar_t kOrdinal = L'#';
constexpr unsigned kLargestOrdinal = 100'000'000;

void appendEscaped(std::wstring& path, const std::wstring& text)
{
    for (const wchar_t character : text) {
        if (character == kSeparator || character == kEscape)
            path += kEscape;
        path += character;
    }
}

/// What stands behind "\#" up to the end of the step: a number from 1 on, or 0 when it is no number.
unsigned readOrdinal(std::wstring_view digits)
{
    unsigned number = 0;
    for (const wchar_t digit : digits) {
        if (digit < L'0' || digit > L'9' || number > kLargestOrdinal)
            return 0;
        number = number * 10 + static_cast<unsigned>(digit - L'0');
    }
    return number;
}

PathStep readStep(std::wstring_view written)
{
    PathStep step;
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (written[i] != kEscape || i + 1 == written.size()) {
            step.text += written[i];
            continue;
        }
        ++i;
        if (written[i] == kOrdinal)
            if (const unsigned ordinal = readOrdinal(written.substr(i + 1))) {
                step.ordinal = ordinal;
                return step;
            }
        step.text += written[i];
    }
    return step;
}

/// Where the step that begins at `start` ends: at a separator that is not escaped, or at the end.
std::size_t endOfStep(std::wstring_view path, std::size_t start)
{
    std::size_t end = start;
    while (end < path.size() && path[end] != kSeparator)
        end += path[end] == kEscape && end + 1 < path.size() ? 2 : 1;
    return end;
}

} // namespace

std::wstring formatPath(const std::vector<PathStep>& steps)
{
    std::wstring path;
    for (const PathStep& step : steps) {
        path += kSeparator;
        appendEscaped(path, step.text);
        if (step.ordinal > 1) {
            path += kEscape;
            path += kOrdinal;
            path += std::to_wstring(step.ordinal);
        }
    }
    return path;
}

std::vector<PathStep> parsePath(std::wstring_view path)
{
    std::vector<PathStep> steps;
    if (path.empty())
        return steps;
    std::size_t start = path.front() == kSeparator ? 1 : 0;
    for (;;) {
        const std::size_t end = endOfStep(path, start);
        steps.push_back(readStep(path.substr(start, end - start)));
        if (end == path.size())
            return steps;
        start = end + 1;
    }
}

} // namespace ovoui::tree
