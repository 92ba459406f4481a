#include <ovoui/frame/core/SavedPosition.h>

#include <algorithm>
#include <cwchar>

namespace ovoui::frame
{
namespace
{

constexpr int kFarthest = 1'000'000; ///< beyond any screen, and near enough for a sum with any size

} // namespace

SavedPosition parsePosition(const std::wstring& text)
{
    SavedPosition position;
    std::swscanf(text.c_str(), L"%d,%d", &position.x, &position.y);
    return position;
}

SavedPosition withinReach(const SavedPosition& position)
{
    return {std::clamp(position.x, -kFarthest, kFarthest), std::clamp(position.y, -kFarthest, kFarthest)};
}

std::wstring formatPosition(const SavedPosition& position)
{
    return std::to_wstring(position.x) + L"," + std::to_wstring(position.y);
}

} // namespace ovoui::frame
