#include <ovoui/toolbar/ImageStrip.h>

#include <afxwin.h>

namespace ovoui::toolbar
{

namespace
{

/// 0 when there is no such bitmap.
int widthOfBitmap(HINSTANCE module, int bitmapId)
{
    CBitmap bitmap;
    bitmap.Attach(::LoadImageW(module, MAKEINTRESOURCEW(bitmapId), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    BITMAP info{};
    bitmap.GetBitmap(&info);
    return static_cast<int>(info.bmWidth);
}

} // namespace

int addStrip(HWND toolBar, int bitmapId, int width)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(bitmapId), RT_BITMAP);
    const int images = width > 0 ? widthOfBitmap(module, bitmapId) / width : 0;
    if (!toolBar || images == 0)
        return -1;
    const TBADDBITMAP added{module, static_cast<UINT_PTR>(bitmapId)};
    return static_cast<int>(
        ::SendMessageW(toolBar, TB_ADDBITMAP, static_cast<WPARAM>(images), reinterpret_cast<LPARAM>(&added)));
}

} // namespace ovoui::toolbar
