#include <ovoui/update/UpdateText.h>

#include <ovoui/frame/core/MessageBoxLayout.h>

#include <ovouires/resource.h>

#include <ovocor/Text.h>
#include <ovocor/TextLineIterator.h>

#include <afxwin.h>

#include <vector>

namespace ovoui::update
{
namespace
{

std::wstring forEdit(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    for (TextLineIterator line(text); line; ++line)
        lines.emplace_back(*line);
    return ovoui::frame::joinLines(lines);
}

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
    return forEdit(
        stringPrintf(format(IDS_UPDATE_AVAILABLE), description.c_str(), product.c_str(), page.c_str()));
}

std::wstring upToDateText(const std::wstring& product)
{
    return forEdit(stringPrintf(format(IDS_UPDATE_NONE), product.c_str()));
}

} // namespace ovoui::update
