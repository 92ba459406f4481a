#include <ovoui/update/UpdateAvailable.h>

#include <ovoui/update/UpdateText.h>
#include <ovoui/update/UpdateTextBox.h>

#include <ovouires/resource.h>

using namespace ovoui::update;

CUpdateAvailable::CUpdateAvailable(const std::wstring& product, const std::wstring& description,
                                   const std::wstring& page)
    : COVOModalDialog(IDD_UPDATE_AVAILABLE, nullptr)
    , m_available(true)
    , m_product(product)
    , m_description(description)
    , m_page(page)
{
}

CUpdateAvailable::CUpdateAvailable(const std::wstring& product)
    : COVOModalDialog(IDD_UPDATE_AVAILABLE, nullptr)
    , m_available(false)
    , m_product(product)
{
}

CUpdateAvailable::~CUpdateAvailable() = default;

BOOL CUpdateAvailable::OnInitDialog()
{
    GetDlgItem(IDOK)->EnableWindow(m_available);
    showText(*this, m_available ? availableText(m_product, m_description, m_page) : upToDateText(m_product));
    return COVOModalDialog::OnInitDialog();
}
