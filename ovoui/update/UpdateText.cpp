#include <ovoui/update/UpdateText.h>

#include <ovoui/frame/LoadedText.h>
#include <ovoui/frame/core/LineEnds.h>

#include <ovouires/resource.h>

#include <ovocor/Text.h>

namespace ovoui::update
{
using frame::withWindowsLineEnds;

std::wstring availableText(const std::wstring& product, const std::wstring& description,
                           const std::wstring& page)
{
    return withWindowsLineEnds(stringPrintf(frame::loadedText(IDS_UPDATE_AVAILABLE).c_str(),
                                            description.c_str(), product.c_str(), page.c_str()));
}

std::wstring upToDateText(const std::wstring& product)
{
    return withWindowsLineEnds(stringPrintf(frame::loadedText(IDS_UPDATE_NONE).c_str(), product.c_str()));
}

} // namespace ovoui::update
