#include <ovoui/frame/ProfileSection.h>

#include <afxwin.h>

namespace ovoui::frame
{

std::wstring ProfileSection::text(const std::wstring& entry) const
{
    CWinApp* const app = AfxGetApp();
    return app ? app->GetProfileString(m_name.c_str(), entry.c_str()).GetString() : std::wstring();
}

int ProfileSection::number(const std::wstring& entry) const
{
    CWinApp* const app = AfxGetApp();
    return app ? static_cast<int>(app->GetProfileInt(m_name.c_str(), entry.c_str(), 0)) : 0;
}

bool ProfileSection::write(const std::wstring& entry, const std::wstring& text) const
{
    CWinApp* const app = AfxGetApp();
    return app && app->WriteProfileString(m_name.c_str(), entry.c_str(), text.c_str());
}

void ProfileSection::write(const std::wstring& entry, int number) const
{
    if (CWinApp* const app = AfxGetApp())
        app->WriteProfileInt(m_name.c_str(), entry.c_str(), number);
}

void ProfileSection::remove(const std::wstring& entry) const
{
    if (CWinApp* const app = AfxGetApp())
        app->WriteProfileString(m_name.c_str(), entry.c_str(), nullptr);
}

void ProfileSection::removeAll() const
{
    if (CWinApp* const app = AfxGetApp())
        app->WriteProfileString(m_name.c_str(), nullptr, nullptr);
}

ProfileSection settingsSection()
{
    return ProfileSection(L"settings");
}

} // namespace ovoui::frame
