/// Not exported: the text control of the message box.
#pragma once

#include <ovoui/frame/core/WrappedText.h>

#include <afxwin.h>

#include <string>

/// A read-only edit control whose lines are wrapped at a width of the caller's choice, whether or not it can
/// be scrolled sideways. (An edit control with a horizontal scroll bar does not wrap at all.)
///
/// The line breaks are put into the text that the control holds. To the outside there are none: the window's
/// text, positions in it, the selection and what is copied are those of the text as it was given.
class MessageText : public CEdit
{
public:
    /// Replaces the text, whose lines end with CR LF, and wraps it at `width` pixels in the control's font.
    void showWrapped(const std::wstring& text, int width, ovoui::frame::LongWords longWords);

protected:
    // text
    afx_msg LRESULT OnSetText(WPARAM, LPARAM);
    afx_msg LRESULT OnGetText(WPARAM size, LPARAM buffer);
    afx_msg LRESULT OnGetTextLength(WPARAM, LPARAM);
    // selection
    afx_msg LRESULT OnGetSel(WPARAM start, LPARAM end);
    afx_msg LRESULT OnSetSel(WPARAM start, LPARAM end);
    afx_msg LRESULT OnCopy(WPARAM, LPARAM);
    // positions
    afx_msg LRESULT OnPosFromChar(WPARAM position, LPARAM);
    afx_msg LRESULT OnCharFromPos(WPARAM, LPARAM point);
    afx_msg LRESULT OnLineFromChar(WPARAM position, LPARAM);
    afx_msg LRESULT OnLineIndex(WPARAM line, LPARAM);
    afx_msg LRESULT OnLineLength(WPARAM position, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    struct Selection
    {
        std::size_t start;
        std::size_t end;
    };

    ovoui::frame::WrappedText wrapped(const std::wstring& text, int width, ovoui::frame::LongWords longWords);
    WPARAM shownPosition(WPARAM position) const;
    Selection selection();

    ovoui::frame::WrappedText m_wrapped; ///< plain while the text is shown as it was set
};
