// CToolBarCtrl: a row of buttons that send commands.
#pragma once

#include <afx/Wnd.h>
#include <commctrl.h>
#include <oleidl.h>

class CBitmap;
class CImageList;
class CToolTipCtrl;

/// A toolbar control. Buttons are named by their command id, or by an index from 0 where the parameter says
/// so. Image lists and tooltips given to the control stay the caller's; Set functions give those of before.
class OVOMFC_API CToolBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolBarCtrl)

public:
    CToolBarCtrl();

    virtual BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    virtual BOOL CreateEx(DWORD exStyle, DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Buttons
    int GetButtonCount() const;
    BOOL AddButtons(int count, LPTBBUTTON buttons);
    BOOL InsertButton(int index, LPTBBUTTON button);
    BOOL DeleteButton(int index);
    BOOL MoveButton(UINT oldIndex, UINT newIndex);
    BOOL GetButton(int index, LPTBBUTTON button) const;
    int GetButtonInfo(int id, TBBUTTONINFO* info) const; ///< The index, -1 on failure.
    BOOL SetButtonInfo(int id, TBBUTTONINFO* info);
    UINT CommandToIndex(UINT id) const;
    BOOL SetCmdID(int index, UINT id);
    CString GetButtonText(int id) const;
    BOOL MapAccelerator(TCHAR character, UINT* id);

    // State
    int GetState(int id) const; ///< TBSTATE_ bits, -1 on failure.
    BOOL SetState(int id, UINT state);
    BOOL EnableButton(int id, BOOL enable = TRUE);
    BOOL CheckButton(int id, BOOL check = TRUE);
    BOOL PressButton(int id, BOOL press = TRUE);
    BOOL HideButton(int id, BOOL hide = TRUE);
    BOOL Indeterminate(int id, BOOL indeterminate = TRUE);
    BOOL MarkButton(int id, BOOL highlight = TRUE);
    BOOL IsButtonEnabled(int id) const;
    BOOL IsButtonChecked(int id) const;
    BOOL IsButtonPressed(int id) const;
    BOOL IsButtonHidden(int id) const;
    BOOL IsButtonIndeterminate(int id) const;
    BOOL IsButtonHighlighted(int id) const;
    int GetHotItem() const;
    int SetHotItem(int index); ///< Gives the index of before; -1 for none.
    BOOL GetAnchorHighlight() const;
    BOOL SetAnchorHighlight(BOOL anchor = TRUE);

    // Layout, in client pixels
    BOOL GetItemRect(int index, LPRECT rect) const; ///< FALSE for a hidden button.
    BOOL GetRect(int id, LPRECT rect) const;
    int HitTest(LPPOINT point) const; ///< Index; for a separator or outside, a negative number.
    int GetRows() const;
    void SetRows(int rows, BOOL larger, LPRECT rect); ///< `rect` gets the bar's new rectangle.
    BOOL GetMaxSize(LPSIZE size) const;
    DWORD GetButtonSize() const; ///< Low word width, high word height.
    BOOL SetButtonSize(CSize size);
    BOOL SetButtonWidth(int minimum, int maximum);
    BOOL SetBitmapSize(CSize size);
    void SetButtonStructSize(int size);
    BOOL SetIndent(int indent);
    int GetMaxTextRows() const;
    BOOL SetMaxTextRows(int rows);
    BOOL GetPadding(int* horizontal, int* vertical) const;
    DWORD SetPadding(int horizontal, int vertical); ///< Gives the padding of before, low word horizontal.
    void GetMetrics(LPTBMETRICS metrics) const;
    void SetMetrics(LPTBMETRICS metrics);
    void AutoSize();
    DWORD GetStyle() const; ///< TBSTYLE_ bits.
    void SetStyle(DWORD style);
    DWORD GetExtendedStyle() const;
    DWORD SetExtendedStyle(DWORD style); ///< Gives the style of before.
    DWORD SetDrawTextFlags(DWORD mask, DWORD flags);

    // Pictures and texts
    /// The bitmap, found along the resource chain, has `count` pictures. Index of the first, -1 on failure.
    int AddBitmap(int count, UINT bitmapId);
    int AddBitmap(int count, CBitmap* bitmap);
    BOOL ReplaceBitmap(LPTBREPLACEBITMAP replacement);
    BOOL ChangeBitmap(int id, int image);
    int GetBitmap(int id) const;
    UINT GetBitmapFlags() const;
    void LoadImages(int bitmapId, HINSTANCE instance); ///< Standard pictures: IDB_ value, HINST_COMMCTRL.
    int AddString(UINT stringId);    ///< Found along the resource chain. Index, -1 on failure.
    int AddStrings(LPCTSTR strings); ///< Each ends with a zero, the last one with two.
    int GetString(int index, LPTSTR text, int room) const; ///< Gives the length, -1 on failure.
    int GetString(int index, CString& text) const;
    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* list);
    CImageList* GetHotImageList() const;
    CImageList* SetHotImageList(CImageList* list);
    CImageList* GetDisabledImageList() const;
    CImageList* SetDisabledImageList(CImageList* list);
    CImageList* GetPressedImageList();
    CImageList* SetPressedImageList(int imageId, CImageList* list);
    BOOL GetColorScheme(COLORSCHEME* scheme) const;
    void SetColorScheme(const COLORSCHEME* scheme);
    HRESULT SetWindowTheme(LPCWSTR subAppName);

    // Dragging and customising
    void GetInsertMark(TBINSERTMARK* mark) const;
    void SetInsertMark(TBINSERTMARK* mark);
    COLORREF GetInsertMarkColor() const;
    COLORREF SetInsertMarkColor(COLORREF colour);
    BOOL InsertMarkHitTest(LPPOINT point, LPTBINSERTMARK mark) const;
    HRESULT GetDropTarget(IDropTarget** target) const; ///< With a new reference.
    void Customize();
    void SaveState(HKEY root, LPCTSTR subKey, LPCTSTR value);
    void RestoreState(HKEY root, LPCTSTR subKey, LPCTSTR value);

    // Other windows
    void SetOwner(CWnd* window); ///< Who gets the notifications.
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* tip);
};
