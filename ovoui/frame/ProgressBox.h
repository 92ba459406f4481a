/// A message box that tells how far long work has come, and lets the user cancel it.
///
///     COVOProgressBox progress(m_hWnd, L"Copying the plans\u2026");
///     for (std::size_t i = 0; i < plans.size() && progress.Advance(i, plans.size()); ++i)
///         copy(plans[i]);
#pragma once

#include <ovoui/export.h>

#include <windows.h>

#include <string>

class COVOProgressBoxDlg;

/// The box is shown as long as the object lives, with its owner disabled; in place of a child, the window
/// around it. The work goes on in the thread that made it, which lets the messages of its windows through in
/// Advance.
class OVOUI_API COVOProgressBox
{
public:
    /// Shows `text`, which may have several lines. `owner` may be null. An empty `caption` gives the default
    /// caption. When the box cannot be created, the work cannot be cancelled. Throws WinError when the font
    /// cannot be measured.
    explicit COVOProgressBox(HWND owner, const std::wstring& text, const std::wstring& caption = {});
    ~COVOProgressBox();
    COVOProgressBox(const COVOProgressBox&) = delete;
    COVOProgressBox& operator=(const COVOProgressBox&) = delete;

    /// Shows how much is done, in units of the host's; a total of 0 stands for work whose length is not
    /// known. Lets waiting messages through, so windows may be closed meanwhile, and this object deleted.
    /// False from when the user has cancelled, the owner was destroyed or the program was told to end; the
    /// work is then to stop.
    bool Advance(ULONGLONG done, ULONGLONG total);

    /// A line in place of the text; the box keeps its size.
    void SetText(const std::wstring& text);

    /// Whether the work is to stop.
    bool IsCancelled() const;

private:
    COVOProgressBoxDlg* m_dialog;
};
