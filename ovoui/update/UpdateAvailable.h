/// Not exported. Tells the user whether there is a newer version.
#pragma once

#include <ovoui/frame/ModalDialog.h>

#include <string>

/// IDOK is the user's wish to see the page of the update; only with an update there is the choice.
class CUpdateAvailable : public COVOModalDialog
{
public:
    /// There is an update.
    CUpdateAvailable(const std::wstring& product, const std::wstring& description, const std::wstring& page);
    /// There is none.
    explicit CUpdateAvailable(const std::wstring& product);
    ~CUpdateAvailable() override;

protected:
    BOOL OnInitDialog() override;

private:
    const bool m_available;
    const std::wstring m_product;
    const std::wstring m_description;
    const std::wstring m_page;
};
