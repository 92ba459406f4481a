// Objects that threads wait for, and locks on them.
#pragma once

#include <afx/Object.h>
#include <afx/String.h>

#include <vector>

/// Something that one thread at a time, or a number of them, may hold. A name makes it known to other
/// processes too.
///
/// The constructors throw CResourceException when the system refuses the object.
class OVOMFC_API CSyncObject : public CObject
{
    DECLARE_DYNAMIC(CSyncObject)

public:
    explicit CSyncObject(LPCTSTR name);
    ~CSyncObject() override;

    operator HANDLE() const { return m_hObject; }

    /// Waits until it is free, at most `timeout` milliseconds; FALSE when the time is over.
    virtual BOOL Lock(DWORD timeout = INFINITE);
    virtual BOOL Unlock() = 0;
    virtual BOOL Unlock(LONG count, LPLONG previous = nullptr);

    HANDLE m_hObject = nullptr;

protected:
    void own(HANDLE object);

    CString m_strName;
};

/// Lets a number of threads in.
class OVOMFC_API CSemaphore : public CSyncObject
{
    DECLARE_DYNAMIC(CSemaphore)

public:
    explicit CSemaphore(LONG initialCount = 1, LONG maxCount = 1, LPCTSTR name = nullptr,
                        LPSECURITY_ATTRIBUTES security = nullptr);

    BOOL Unlock() override;
    /// FALSE, and no change, when that were more than the greatest count. `previous` gets the count of
    /// before.
    BOOL Unlock(LONG count, LPLONG previous = nullptr) override;
};

/// Lets one thread in, as often as it asks.
class OVOMFC_API CMutex : public CSyncObject
{
    DECLARE_DYNAMIC(CMutex)

public:
    explicit CMutex(BOOL initiallyOwn = FALSE, LPCTSTR name = nullptr,
                    LPSECURITY_ATTRIBUTES security = nullptr);

    using CSyncObject::Unlock;
    BOOL Unlock() override;
};

/// Lets threads in once it is set: one of them, or with `manualReset` all until it is reset.
class OVOMFC_API CEvent : public CSyncObject
{
    DECLARE_DYNAMIC(CEvent)

public:
    explicit CEvent(BOOL initiallyOwn = FALSE, BOOL manualReset = FALSE, LPCTSTR name = nullptr,
                    LPSECURITY_ATTRIBUTES security = nullptr);

    BOOL SetEvent() { return ::SetEvent(m_hObject); }
    BOOL PulseEvent() { return ::PulseEvent(m_hObject); }
    BOOL ResetEvent() { return ::ResetEvent(m_hObject); }

    using CSyncObject::Unlock;
    BOOL Unlock() override; ///< Does nothing: an event belongs to no thread.
};

/// Lets one thread of this process in, as often as it asks.
class OVOMFC_API CCriticalSection : public CSyncObject
{
    DECLARE_DYNAMIC(CCriticalSection)

public:
    CCriticalSection();
    ~CCriticalSection() override;

    operator CRITICAL_SECTION*() { return &m_sect; }

    BOOL Lock();
    BOOL Lock(DWORD timeout) override; ///< Waits without a limit: the system has none for critical sections.
    using CSyncObject::Unlock;
    BOOL Unlock() override;

    CRITICAL_SECTION m_sect;
};

/// Holds one object; lets it go at the end of the scope at the latest. Lock once before the next Unlock.
class OVOMFC_API CSingleLock
{
public:
    explicit CSingleLock(CSyncObject* object, BOOL initialLock = FALSE);
    ~CSingleLock();
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;

    BOOL Lock(DWORD timeout = INFINITE); ///< FALSE when the time, in milliseconds, is over.
    BOOL Unlock();
    BOOL Unlock(LONG count, LPLONG previous = nullptr);
    BOOL IsLocked() const { return m_locked; }

private:
    CSyncObject* m_object;
    BOOL m_locked = FALSE;
};

/// Holds one or all of several objects, which must not be critical sections. The array must outlive the lock.
class OVOMFC_API CMultiLock
{
public:
    CMultiLock(CSyncObject* objects[], DWORD count, BOOL initialLock = FALSE);
    ~CMultiLock();
    CMultiLock(const CMultiLock&) = delete;
    CMultiLock& operator=(const CMultiLock&) = delete;

    /// Waits for all objects or for one. Gives what MsgWaitForMultipleObjects gives: WAIT_OBJECT_0 and up
    /// says which one it was, WAIT_OBJECT_0 and the count that a message of `wakeMask` (QS_ bits) has come,
    /// WAIT_TIMEOUT, WAIT_FAILED.
    DWORD Lock(DWORD timeout = INFINITE, BOOL waitForAll = TRUE, DWORD wakeMask = 0);
    BOOL Unlock(); ///< All that are held. FALSE when one could not be let go.
    /// The semaphores among them. FALSE when none is held, or one could not be let go.
    BOOL Unlock(LONG count, LPLONG previous = nullptr);
    BOOL IsLocked(DWORD index) const;

private:
    CSyncObject** m_objects;
    std::vector<HANDLE> m_handles;
    std::vector<bool> m_locked;
};
