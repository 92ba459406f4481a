// Whether texts fit the controls that show them, measured in the controls' own fonts.
#pragma once

#include "TextChecks.h"

#include <memory>

/// A dialog made from its template in exactly one language, not shown.
class HiddenDialog
{
public:
    HiddenDialog(HMODULE module, UINT dialog, LANGID language);
    ~HiddenDialog();
    HiddenDialog(const HiddenDialog&) = delete;
    HiddenDialog& operator=(const HiddenDialog&) = delete;

    HWND handle() const { return m_handle; }

private:
    HWND m_handle;
};

/// Texts of the dialog's caption, labels and buttons that are wider than their room: what, needed, available.
Problems fitProblems(HWND dialog);

/// The same for one text in one control.
Problems fitProblems(HWND control, const std::wstring& text);

/// Headings of a report list that are wider than their columns.
Problems headingProblems(HWND list);
