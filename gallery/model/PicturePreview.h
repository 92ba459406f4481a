// A pane that shows the picture in a file.
#pragma once

#include <afxwin.h>

#include <memory>
#include <string>

namespace Gdiplus
{
class Bitmap;
}

/// Either a child in a dialog, or a window beside one, which it follows.
class PicturePreview : public CWnd
{
public:
    PicturePreview();
    ~PicturePreview() override;

    bool createIn(CWnd& parent, const CRect& place);
    bool createBeside(CWnd& dialog);

    /// Shows the picture, or nothing when the file holds none.
    void show(const std::wstring& path);

protected:
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

private:
    void goBeside();

    std::unique_ptr<Gdiplus::Bitmap> m_picture;
    HWND m_beside = nullptr; ///< the dialog that it follows, if it does
};
