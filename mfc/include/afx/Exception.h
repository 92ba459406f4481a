// MFC's own exceptions. They are thrown and caught by pointer; the handler that catches one calls Delete().
#pragma once

#include <afx/Object.h>
#include <afx/String.h>

class OVOMFC_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    CException();
    /// `autoDelete`: whether Delete() frees the object, as it must for one on the heap.
    explicit CException(BOOL autoDelete);
    ~CException() override;

    /// Frees the object if it lies on the heap.
    void Delete();

    /// A text for the user, cut to `maxError` characters with the terminating zero. `helpContext` may be
    /// null. FALSE, and an empty text, when there is none.
    virtual BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const;

    /// Shows the text in a message box; `messageId` is the string shown when there is no text.
    virtual int ReportError(UINT type = MB_OK, UINT messageId = 0);

private:
    BOOL m_bAutoDelete = TRUE;
};

/// An exception whose text is a string resource.
class OVOMFC_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)

public:
    CSimpleException();
    explicit CSimpleException(BOOL autoDelete);
    CSimpleException(BOOL autoDelete, UINT resourceId);
    ~CSimpleException() override;

    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const override;

private:
    UINT m_nResourceID = 0;
};

class OVOMFC_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)

public:
    CMemoryException();
    explicit CMemoryException(BOOL autoDelete);
    CMemoryException(BOOL autoDelete, UINT resourceId);
    ~CMemoryException() override;
};

class OVOMFC_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)

public:
    CNotSupportedException();
    explicit CNotSupportedException(BOOL autoDelete);
    CNotSupportedException(BOOL autoDelete, UINT resourceId);
    ~CNotSupportedException() override;
};

class OVOMFC_API CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)

public:
    CResourceException();
    explicit CResourceException(BOOL autoDelete);
    CResourceException(BOOL autoDelete, UINT resourceId);
    ~CResourceException() override;
};

class OVOMFC_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)

public:
    CInvalidArgException();
    explicit CInvalidArgException(BOOL autoDelete);
    CInvalidArgException(BOOL autoDelete, UINT resourceId);
    ~CInvalidArgException() override;
};

/// Ends a user's operation silently, after a message was shown already.
class OVOMFC_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)

public:
    CUserException();
    explicit CUserException(BOOL autoDelete);
    CUserException(BOOL autoDelete, UINT resourceId);
    ~CUserException() override;
};

/// A failed OLE call.
class OVOMFC_API COleException : public CException
{
    DECLARE_DYNAMIC(COleException)

public:
    COleException();
    ~COleException() override;

    /// The status code that fits an exception: of a COleException its own, else a general one.
    static SCODE PASCAL Process(const CException* exception);

    BOOL GetErrorMessage(LPTSTR error, UINT maxError, UINT* helpContext = nullptr) const override;

    SCODE m_sc = S_OK;
};

namespace afxdetail
{

/// Deletes an exception at the end of the block that caught it.
class CaughtException
{
public:
    explicit CaughtException(CException* exception)
        : m_exception(exception)
    {
    }
    ~CaughtException()
    {
        if (m_exception)
            m_exception->Delete();
    }
    CaughtException(const CaughtException&) = delete;
    CaughtException& operator=(const CaughtException&) = delete;

    /// Leaves it to the next block outside.
    void release() { m_exception = nullptr; }

private:
    CException* m_exception;
};

} // namespace afxdetail

// Blocks that delete what they catch:
//
//     TRY {
//         ...
//     }
//     CATCH (CResourceException, e) {
//         ...
//     }
//     END_CATCH
#define TRY try
#define CATCH(exceptionClass, name)                                                                          \
    catch (exceptionClass * name)                                                                            \
    {                                                                                                        \
        afxdetail::CaughtException caughtException(name);
#define AND_CATCH(exceptionClass, name)                                                                      \
    }                                                                                                        \
    CATCH(exceptionClass, name)
#define END_CATCH }
#define CATCH_ALL(name) CATCH(CException, name)
#define AND_CATCH_ALL(name) AND_CATCH(CException, name)
#define END_CATCH_ALL END_CATCH
#define THROW(exception) throw(exception)
/// Inside a CATCH block: raises the exception that it caught again.
#define THROW_LAST() (caughtException.release(), throw)

[[noreturn]] OVOMFC_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] OVOMFC_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] OVOMFC_API void AFXAPI AfxThrowResourceException();
[[noreturn]] OVOMFC_API void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] OVOMFC_API void AFXAPI AfxThrowUserException();
[[noreturn]] OVOMFC_API void AFXAPI AfxThrowOleException(SCODE status);
