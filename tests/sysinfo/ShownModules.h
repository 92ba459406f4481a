/// The system information dialog as its user sees it, and the modules that it is to show.
#pragma once

#include <ovoui/sysinfo/SystemInfoDlg.h>

#include <ovocor/Text.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace ovo::testkit
{

constexpr UINT kCopy = 1001;
constexpr int kText = 1002;

/// The columns of a line.
enum
{
    kName,
    kAddress,
    kSize,
    kLinkTime,
    kFileVersion,
    kProductVersion,
    kType,
    kFlags,
    kOs,
    kPath,
    kDescription
};

/// A module that is loaded for the time of a scope.
class Library
{
public:
    explicit Library(const std::wstring& path)
        : m_module(::LoadLibraryW(path.c_str()))
    {
        EXPECT_NE(m_module, nullptr) << testing::PrintToString(path);
    }
    ~Library() { release(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    void release()
    {
        if (m_module)
            ::FreeLibrary(std::exchange(m_module, nullptr));
    }
    HMODULE get() const { return m_module; }

    std::wstring path() const
    {
        wchar_t text[1000]{};
        ::GetModuleFileNameW(m_module, text, 1000);
        return text;
    }
    std::wstring address() const
    {
        return stringPrintf(L"%016I64X", reinterpret_cast<std::uint64_t>(m_module));
    }

private:
    HMODULE m_module;
};

inline std::vector<std::wstring> split(const std::wstring& text, const std::wstring& at)
{
    std::vector<std::wstring> parts;
    std::size_t begin = 0;
    for (std::size_t end; (end = text.find(at, begin)) != std::wstring::npos; begin = end + at.size())
        parts.push_back(text.substr(begin, end - begin));
    parts.push_back(text.substr(begin));
    return parts;
}

/// The dialog as a host shows it, modeless so that a test can look at it.
class Shown
{
public:
    Shown()
    {
        m_dialog.create();
        m_dialog.ShowWindow(SW_SHOW);
    }

    std::wstring text()
    {
        CString text;
        m_dialog.GetDlgItem(kText)->GetWindowText(text);
        return std::wstring(text);
    }
    std::vector<std::wstring> lines() { return split(text(), L"\r\n"); }

    /// The line of the module with this name; empty without one.
    std::wstring line(const std::wstring& name)
    {
        for (const std::wstring& line : lines())
            if (lowercase(line).starts_with(lowercase(name) + L"\t"))
                return line;
        return {};
    }
    /// Its columns; none without it.
    std::vector<std::wstring> columns(const std::wstring& name)
    {
        const std::wstring found = line(name);
        return found.empty() ? std::vector<std::wstring>() : split(found, L"\t");
    }
    CDialog& dialog() { return m_dialog; }

private:
    class Dialog : public CSystemInfoDlg
    {
    public:
        void create() { Create(1506); }
    };
    Dialog m_dialog;
};

inline std::wstring listSeparator()
{
    wchar_t text[20]{};
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SLIST, text, 20);
    return text;
}

} // namespace ovo::testkit
