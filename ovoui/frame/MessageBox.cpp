#include <ovoui/frame/MessageBox.h>

#include <ovocor/ovocor.h>
#include <ovoui/frame/MsgBoxDlg.h>

#include <limits>

int OVOMessageBox(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type,
                  const wchar_t* settingsKey, UINT helpId)
{
    COVOMsgBoxDlg box({owner, text, caption, type, settingsKey, helpId});
    const INT_PTR result = box.DoModal();
    if (result < std::numeric_limits<int>::min() || result > std::numeric_limits<int>::max())
        throwIntCast();
    return static_cast<int>(result);
}
