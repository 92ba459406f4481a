/// Takes settings from the application's profile, or writes them there, in one list for both.
///
///     void Settings::exchange(bool saving)
///     {
///         const ProfileExchange entry(L"Reading", saving);
///         entry(L"Font", font);
///         entry(L"Points", points);
///     }
#pragma once

#include <ovoui/export.h>

#include <afxwin.h>

#include <string>

/// Each call reads or writes the `value` of one `entry`. What is missing or no such value leaves it as it is,
/// so that it holds the default. There is an application object; what cannot be written is lost.
class OVOUI_API ProfileExchange
{
public:
    /// Of the section `section`; `saving` writes.
    ProfileExchange(std::wstring section, bool saving);

    /// Reads or writes the `value` of `entry`. A COLORREF is a DWORD; a double is kept as a text with all its
    /// digits, with a point whatever the language.
    void operator()(LPCWSTR entry, CString& value) const;
    void operator()(LPCWSTR entry, int& value) const;
    void operator()(LPCWSTR entry, DWORD& value) const;
    void operator()(LPCWSTR entry, bool& value) const;
    void operator()(LPCWSTR entry, double& value) const;

private:
    std::wstring m_section;
    bool m_saving;
};
