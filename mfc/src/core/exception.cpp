// MFC's own exceptions.
#include <afxwin.h>

namespace
{

/// The system's text for an error code, without the line end.
CString systemText(DWORD code)
{
    LPWSTR text = nullptr;
    ::FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM |
                         FORMAT_MESSAGE_IGNORE_INSERTS,
                     nullptr, code, 0, reinterpret_cast<LPWSTR>(&text), 0, nullptr);
    CString result(text);
    ::LocalFree(text);
    result.TrimRight();
    return result;
}

BOOL copyText(const CString& text, LPTSTR buffer, UINT size, UINT* helpContext)
{
    if (helpContext)
        *helpContext = 0;
    if (!buffer || size == 0)
        return FALSE;
    ::lstrcpynW(buffer, text, static_cast<int>(size));
    return !text.IsEmpty();
}

} // namespace

IMPLEMENT_DYNAMIC(CException, CObject)

CException::CException() = default;

CException::CException(BOOL autoDelete)
    : m_bAutoDelete(autoDelete)
{
}

CException::~CException() = default;

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext) const
{
    return copyText(CString(), error, maxError, helpContext);
}

int CException::ReportError(UINT type, UINT messageId)
{
    TCHAR text[512];
    UINT helpContext = 0;
    if (GetErrorMessage(text, static_cast<UINT>(std::size(text)), &helpContext))
        return AfxMessageBox(text, type, helpContext);
    return AfxMessageBox(messageId ? messageId : AFX_IDP_NO_ERROR_AVAILABLE, type, helpContext);
}

IMPLEMENT_DYNAMIC(CSimpleException, CException)

CSimpleException::CSimpleException() = default;

CSimpleException::CSimpleException(BOOL autoDelete)
    : CException(autoDelete)
{
}

CSimpleException::CSimpleException(BOOL autoDelete, UINT resourceId)
    : CException(autoDelete)
    , m_nResourceID(resourceId)
{
}

CSimpleException::~CSimpleException() = default;

BOOL CSimpleException::GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext) const
{
    CString text;
    if (m_nResourceID)
        text.LoadString(m_nResourceID);
    return copyText(text, error, maxError, helpContext);
}

IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)

CMemoryException::CMemoryException()
    : CSimpleException(TRUE, AFX_IDS_MEMORY_EXCEPTION)
{
}

CMemoryException::CMemoryException(BOOL autoDelete)
    : CSimpleException(autoDelete, AFX_IDS_MEMORY_EXCEPTION)
{
}

CMemoryException::CMemoryException(BOOL autoDelete, UINT resourceId)
    : CSimpleException(autoDelete, resourceId)
{
}

CMemoryException::~CMemoryException() = default;

IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)

CNotSupportedException::CNotSupportedException()
    : CSimpleException(TRUE, AFX_IDS_NOT_SUPPORTED_EXCEPTION)
{
}

CNotSupportedException::CNotSupportedException(BOOL autoDelete)
    : CSimpleException(autoDelete, AFX_IDS_NOT_SUPPORTED_EXCEPTION)
{
}

CNotSupportedException::CNotSupportedException(BOOL autoDelete, UINT resourceId)
    : CSimpleException(autoDelete, resourceId)
{
}

CNotSupportedException::~CNotSupportedException() = default;

IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)

CResourceException::CResourceException()
    : CSimpleException(TRUE, AFX_IDS_RESOURCE_EXCEPTION)
{
}

CResourceException::CResourceException(BOOL autoDelete)
    : CSimpleException(autoDelete, AFX_IDS_RESOURCE_EXCEPTION)
{
}

CResourceException::CResourceException(BOOL autoDelete, UINT resourceId)
    : CSimpleException(autoDelete, resourceId)
{
}

CResourceException::~CResourceException() = default;

IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

CInvalidArgException::CInvalidArgException()
    : CSimpleException(TRUE, AFX_IDS_INVALID_ARG_EXCEPTION)
{
}

CInvalidArgException::CInvalidArgException(BOOL autoDelete)
    : CSimpleException(autoDelete, AFX_IDS_INVALID_ARG_EXCEPTION)
{
}

CInvalidArgException::CInvalidArgException(BOOL autoDelete, UINT resourceId)
    : CSimpleException(autoDelete, resourceId)
{
}

CInvalidArgException::~CInvalidArgException() = default;

IMPLEMENT_DYNAMIC(CUserException, CSimpleException)

CUserException::CUserException()
    : CSimpleException(TRUE, AFX_IDS_USER_EXCEPTION)
{
}

CUserException::CUserException(BOOL autoDelete)
    : CSimpleException(autoDelete, AFX_IDS_USER_EXCEPTION)
{
}

CUserException::CUserException(BOOL autoDelete, UINT resourceId)
    : CSimpleException(autoDelete, resourceId)
{
}

CUserException::~CUserException() = default;

IMPLEMENT_DYNAMIC(COleException, CException)

COleException::COleException() = default;

COleException::~COleException() = default;

SCODE PASCAL COleException::Process(const CException* exception)
{
    if (const auto* ole = dynamic_cast<const COleException*>(exception))
        return ole->m_sc;
    if (dynamic_cast<const CMemoryException*>(exception))
        return E_OUTOFMEMORY;
    if (dynamic_cast<const CNotSupportedException*>(exception))
        return E_NOTIMPL;
    return E_UNEXPECTED;
}

BOOL COleException::GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext) const
{
    CString text = systemText(static_cast<DWORD>(m_sc));
    if (text.IsEmpty()) {
        CString code;
        code.Format(L"0x%08X", static_cast<unsigned>(m_sc));
        AfxFormatString1(text, AFX_IDP_UNKNOWN_STATUS, code);
    }
    return copyText(text, error, maxError, helpContext);
}

// The exception for want of memory must not need any.
void AFXAPI AfxThrowMemoryException()
{
    static CMemoryException exception(FALSE);
    throw static_cast<CMemoryException*>(&exception);
}

void AFXAPI AfxThrowNotSupportedException()
{
    throw new CNotSupportedException;
}

void AFXAPI AfxThrowResourceException()
{
    throw new CResourceException;
}

void AFXAPI AfxThrowInvalidArgException()
{
    throw new CInvalidArgException;
}

void AFXAPI AfxThrowUserException()
{
    throw new CUserException;
}

void AFXAPI AfxThrowOleException(SCODE status)
{
    auto* exception = new COleException;
    exception->m_sc = status;
    throw exception;
}
