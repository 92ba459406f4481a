#include <ovoui/update/UpdateOffer.h>

#include <ovoui/update/UpdateText.h>
#include <ovoui/update/UpdateTextBox.h>

using namespace ovoui::update;

BEGIN_MESSAGE_MAP(CUpdateOffer, COVOModalDialog)
    ON_COMMAND_RANGE(IDC_UPDATE_LATER, IDC_UPDATE_SKIP, &CUpdateOffer::OnEnd)
END_MESSAGE_MAP()

CUpdateOffer::CUpdateOffer(const std::wstring& product, const AvailableUpdate& update, CWnd* parent)
    : COVOModalDialog(IDD_UPDATE_OFFER, parent)
    , m_product(product)
    , m_update(update)
{
}

CUpdateOffer::~CUpdateOffer() = default;

BOOL CUpdateOffer::OnInitDialog()
{
    showText(*this, availableText(m_product, m_update.description, m_update.page));
    return COVOModalDialog::OnInitDialog();
}

void CUpdateOffer::OnEnd(UINT id)
{
    EndDialog(static_cast<int>(id));
}
