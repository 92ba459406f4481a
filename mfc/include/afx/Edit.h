// CEdit: a field for typing text, of one line or many.
#pragma once

#include <afx/Wnd.h>

/// An edit control. Positions and lengths are characters, lines count from 0.
class OVOMFC_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)

public:
    CEdit();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Text and lines
    int GetLineCount() const;
    /// Copies a line without a terminating zero and gives its length. The buffer holds `maxLength`
    /// characters, or says in its first word how many.
    int GetLine(int index, LPTSTR buffer) const;
    int GetLine(int index, LPTSTR buffer, int maxLength) const;
    int LineFromChar(int index = -1) const;  ///< -1: the line of the caret.
    int LineIndex(int line = -1) const;      ///< First position of a line; -1: the line of the caret.
    int LineLength(int position = -1) const; ///< Of the line that holds the position.
    void LineScroll(int lines, int chars = 0);
    int GetFirstVisibleLine() const;
    int CharFromPos(CPoint point) const; ///< Low word position, high word line.
    CPoint PosFromChar(UINT position) const;
    void SetHandle(HLOCAL buffer);
    HLOCAL GetHandle() const;
    BOOL FmtLines(BOOL addEndOfLine);

    // Selection and editing
    DWORD GetSel() const; ///< Low word start, high word end.
    void GetSel(int& start, int& end) const;
    /// Low word start, high word end; 0 to -1 selects all. Scrolls the caret into view unless `noScroll`.
    void SetSel(DWORD selection, BOOL noScroll = FALSE);
    void SetSel(int start, int end, BOOL noScroll = FALSE);
    void ReplaceSel(LPCTSTR text, BOOL canUndo = FALSE);
    void Cut();
    void Copy();
    void Paste();
    void Clear();
    BOOL CanUndo() const;
    BOOL Undo();
    void EmptyUndoBuffer();
    BOOL GetModify() const;
    void SetModify(BOOL modified = TRUE);

    // Limits and looks
    void LimitText(int chars = 0); ///< For what the user types; 0 is the greatest possible.
    void SetLimitText(UINT chars);
    UINT GetLimitText() const;
    BOOL SetReadOnly(BOOL readOnly = TRUE);
    TCHAR GetPasswordChar() const;
    void SetPasswordChar(TCHAR character);
    void GetRect(LPRECT rect) const; ///< The formatting rectangle, in client coordinates.
    void SetRect(LPCRECT rect);      ///< Multi-line only.
    void SetRectNP(LPCRECT rect);    ///< As SetRect, without repainting.
    DWORD GetMargins() const;        ///< Low word left, high word right, in pixels.
    void SetMargins(UINT left, UINT right);
    void SetTabStops(); ///< Multi-line only, as the following, in dialog units.
    BOOL SetTabStops(const int& eachStop);
    BOOL SetTabStops(int count, LPINT stops);

    // Common controls 6
    BOOL SetCueBanner(LPCWSTR text);
    BOOL SetCueBanner(LPCWSTR text, BOOL drawWhenFocused);
    CString GetCueBanner() const; ///< At most 1023 characters.
    BOOL GetCueBanner(LPWSTR text, int room) const;
    void SetHighlight(int start, int end);
    BOOL GetHighlight(int* start, int* end) const;
    BOOL ShowBalloonTip(PEDITBALLOONTIP tip);
    BOOL ShowBalloonTip(LPCWSTR title, LPCWSTR text, INT icon = TTI_NONE);
    BOOL HideBalloonTip();
};
