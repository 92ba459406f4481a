/// Not exported. A newer version that the user did not ask for.
#pragma once

#include <ovoui/frame/ModalDialog.h>
#include <ovoui/update/UpdateCheck.h>

#include <ovouires/resource.h>

#include <string>

/// IDOK is the user's wish to see the page, IDC_UPDATE_SKIP that to hear no more of this version; everything
/// else puts it off.
class CUpdateOffer : public COVOModalDialog
{
public:
    CUpdateOffer(const std::wstring& product, const AvailableUpdate& update, CWnd* parent);
    ~CUpdateOffer() override;

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnEnd(UINT id);
    DECLARE_MESSAGE_MAP()

private:
    const std::wstring m_product;
    const AvailableUpdate m_update;
};
