#pragma once

#include <afxwin.h>

#include <string>

namespace ovo::testkit
{

/// Where the application keeps its profile while this object lives: an empty place of its own, which is
/// removed with all that was written there. The application's former place comes back.
class TemporaryProfile
{
public:
    /// Where profiles are kept.
    enum class Kind
    {
        Registry, ///< below HKEY_CURRENT_USER
        IniFile   ///< in a file
    };

    /// Of this `kind`.
    explicit TemporaryProfile(Kind kind = Kind::Registry);
    ~TemporaryProfile();
    TemporaryProfile(const TemporaryProfile&) = delete;
    TemporaryProfile& operator=(const TemporaryProfile&) = delete;

    /// The key under HKEY_CURRENT_USER, or the path of the file, in which the sections are.
    const std::wstring& place() const { return m_place; }

private:
    Kind m_kind;
    std::wstring m_place;
    LPCTSTR m_oldKey;
    LPCTSTR m_oldName;
};

} // namespace ovo::testkit
