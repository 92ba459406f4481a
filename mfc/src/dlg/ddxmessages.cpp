#include "ddxmessages.h"

namespace afxdetail
{

void refuse(CDataExchange* exchange, UINT messageId)
{
    AfxMessageBox(messageId, MB_ICONEXCLAMATION);
    exchange->Fail();
}

void refuse(CDataExchange* exchange, UINT messageId, const std::wstring& first, const std::wstring& second)
{
    CString message;
    AfxFormatString2(message, messageId, first.c_str(), second.c_str());
    AfxMessageBox(message, MB_ICONEXCLAMATION, messageId);
    exchange->Fail();
}

} // namespace afxdetail
