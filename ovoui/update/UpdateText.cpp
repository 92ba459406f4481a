#include <ovoui/update/UpdateText.h>

#include <ovoui/frame/core/LineEnds.h>

#include <ovouires/resource.h>

#include <ovocor/Text.h>

#include <afxwin.h>

namespace ovoui::update
{
using frame::withWindowsLineEnds;

namespace
{

CString format(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

} // namespace

std::wstring availableText(const std::wstring& product, const std::wstring& description,
                           const std::wstring& page)
{
    return withWindowsLineEnds(
        stringPrintf(format(IDS_UPDATE_AVAILABLE), description.c_str(), product.c_str(), page.c_str()));
}

std::wstring upToDateText(const std::wstring& product)
{
    return withWindowsLineEnds(stringPrintf(format(IDS_UPDATE_NONE), product.c_str()));
}

} // namespace ovoui::update
