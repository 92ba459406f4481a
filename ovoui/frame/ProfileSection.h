/// Not exported: entries that the library keeps in the application's profile.
#pragma once

#include <string>

namespace ovoui::frame
{

/// A section of the profile of the running application. Without an application object nothing is kept, and
/// reading gives what stands for a missing entry.
class ProfileSection
{
public:
    explicit ProfileSection(std::wstring name)
        : m_name(std::move(name))
    {
    }

    std::wstring text(const std::wstring& entry) const; ///< empty when there is none
    int number(const std::wstring& entry) const;        ///< 0 when there is none

    bool write(const std::wstring& entry, const std::wstring& text) const; ///< false on failure
    void write(const std::wstring& entry, int number) const;
    void remove(const std::wstring& entry) const;
    void removeAll() const;

private:
    std::wstring m_name;
};

/// Where the positions of windows are kept.
ProfileSection settingsSection();

} // namespace ovoui::frame
