// CStatic: a text, an icon or a picture.
#pragma once

#include <afx/Wnd.h>

/// A static control. Set functions give the picture of before, Get functions NULL when there is none;
/// pictures stay the caller's.
class OVOMFC_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)

public:
    CStatic();

    virtual BOOL Create(LPCTSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xffff);

    HBITMAP SetBitmap(HBITMAP bitmap);
    HBITMAP GetBitmap() const;
    HICON SetIcon(HICON icon);
    HICON GetIcon() const;
    HCURSOR SetCursor(HCURSOR cursor);
    HCURSOR GetCursor();
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE metafile);
    HENHMETAFILE GetEnhMetaFile() const;

    /// Draws a control of style SS_OWNERDRAW. Does nothing by default.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
