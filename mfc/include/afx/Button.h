// CButton: push buttons, check boxes, radio buttons and group boxes.
#pragma once

#include <afx/Wnd.h>

class CImageList;

/// A button control. Pictures and image lists given to it stay the caller's.
class OVOMFC_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)

public:
    CButton();

    virtual BOOL Create(LPCTSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // State and style
    UINT GetState() const; ///< BST_ bits.
    void SetState(BOOL highlight);
    int GetCheck() const; ///< BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    void SetCheck(int check);
    UINT GetButtonStyle() const; ///< The BS_ type and bits that BM_SETSTYLE changes.
    void SetButtonStyle(UINT style, BOOL redraw = TRUE);

    // Pictures. Set functions give the picture of before, Get functions NULL when there is none.
    HICON SetIcon(HICON icon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP bitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR cursor);
    HCURSOR GetCursor();

    // Common controls 6. FALSE without it.
    BOOL GetIdealSize(SIZE* size);
    BOOL SetImageList(PBUTTON_IMAGELIST imageList);
    BOOL GetImageList(PBUTTON_IMAGELIST imageList);
    BOOL SetTextMargin(RECT* margin);
    BOOL GetTextMargin(RECT* margin);
    BOOL SetElevationRequired(BOOL required);

    // Command links
    CString GetNote() const;
    /// `*length` is the room in characters, on return the length of the note.
    BOOL GetNote(LPTSTR note, UINT* length) const;
    UINT GetNoteLength() const;
    BOOL SetNote(LPCTSTR note);

    // Split buttons
    BOOL GetSplitInfo(PBUTTON_SPLITINFO info) const;
    BOOL SetSplitInfo(PBUTTON_SPLITINFO info);
    UINT GetSplitStyle() const;
    BOOL SetSplitStyle(UINT style);
    BOOL GetSplitSize(LPSIZE size) const;
    BOOL SetSplitSize(LPSIZE size);
    CImageList* GetSplitImageList() const;
    BOOL SetSplitImageList(CImageList* imageList);
    TCHAR GetSplitGlyph() const;
    BOOL SetSplitGlyph(TCHAR glyph);
    BOOL SetDropDownState(BOOL dropDown);

    /// Draws a button of style BS_OWNERDRAW. Does nothing by default.
    virtual void DrawItem(LPDRAWITEMSTRUCT item);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
