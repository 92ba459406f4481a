#include <ovoui/update/UpdateAvailable.h>

#include <ovoui/frame/core/MessageBoxLayout.h>

#include <ovouires/resource.h>

#include <ovocor/Text.h>
#include <ovocor/TextLineIterator.h>

#include <vector>

namespace
{

/// With the line ends of edit controls.
std::wstring forEdit(const std::wstring& text)
{
    std::vector<std::wstring> lines;
    for (TextLineIterator line(text); line; ++line)
        lines.emplace_back(*line);
    return ovoui::frame::joinLines(lines);
}

} // namespace

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

std::wstring CUpdateAvailable::text() const
{
    CString format;
    format.LoadString(m_available ? IDS_UPDATE_AVAILABLE : IDS_UPDATE_NONE);
    return m_available ? stringPrintf(format, m_description.c_str(), m_product.c_str(), m_page.c_str())
                       : stringPrintf(format, m_product.c_str());
}

BOOL CUpdateAvailable::OnInitDialog()
{
    GetDlgItem(IDOK)->EnableWindow(m_available);
    SetDlgItemText(IDC_UPDATE_TEXT, forEdit(text()).c_str());
    return COVOModalDialog::OnInitDialog();
}
