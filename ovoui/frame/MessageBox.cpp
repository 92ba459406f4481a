#include <ovoui/frame/MessageBox.h>

#include <ovocor/ovocor.h>
#include <ovoui/frame/Module.h>
#include <ovoui/frame/MsgBoxDlg.h>
#include <ovouires/resource.h>

#include <limits>

namespace
{

std::wstring captionOrDefault(const wchar_t* caption)
{
    return caption && *caption ? caption : ovoui::resourceString(IDS_MESSAGE_CAPTION);
}

} // namespace

int OVOMessageBox(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type, const wchar_t* settingsKey,
                  UINT helpId)
{
    const std::wstring title = captionOrDefault(caption);
    COVOMsgBoxDlg box({owner, text, title.c_str(), type, settingsKey, helpId});
    const INT_PTR result = box.DoModal();
    if (result < std::numeric_limits<int>::min() || result > std::numeric_limits<int>::max())
        throwIntCast();
    return static_cast<int>(result);
}
