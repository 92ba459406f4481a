#include <ovoui/frame/core/SavedPosition.h>

#include <cwchar>

namespace ovoui::frame
{

SavedPosition parsePosition(const std::wstring& text)
{
    SavedPosition position;
    std::swscanf(text.c_str(), L"%d,%d", &position.x, &position.y);
    return position;
}

std::wstring formatPosition(const SavedPosition& position)
{
    return std::to_wstring(position.x) + L"," + std::to_wstring(position.y);
}

} // namespace ovoui::frame
