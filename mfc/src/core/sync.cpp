// Objects that threads wait for, and locks on them.
#include <afxmt.h>

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

// CSyncObject

CSyncObject::CSyncObject(LPCTSTR name)
    : m_strName(name)
{
}

CSyncObject::~CSyncObject()
{
    if (m_hObject)
        ::CloseHandle(m_hObject);
}

void CSyncObject::own(HANDLE object)
{
    m_hObject = object;
    if (!object)
        AfxThrowResourceException();
}

BOOL CSyncObject::Lock(DWORD timeout)
{
    const DWORD result = ::WaitForSingleObject(m_hObject, timeout);
    return result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

BOOL CSyncObject::Unlock(LONG, LPLONG)
{
    return TRUE;
}

// The kinds

CSemaphore::CSemaphore(LONG initialCount, LONG maxCount, LPCTSTR name, LPSECURITY_ATTRIBUTES security)
    : CSyncObject(name)
{
    own(::CreateSemaphoreW(security, initialCount, maxCount, name));
}

BOOL CSemaphore::Unlock()
{
    return Unlock(1, nullptr);
}

BOOL CSemaphore::Unlock(LONG count, LPLONG previous)
{
    return ::ReleaseSemaphore(m_hObject, count, previous);
}

CMutex::CMutex(BOOL initiallyOwn, LPCTSTR name, LPSECURITY_ATTRIBUTES security)
    : CSyncObject(name)
{
    own(::CreateMutexW(security, initiallyOwn, name));
}

BOOL CMutex::Unlock()
{
    return ::ReleaseMutex(m_hObject);
}

CEvent::CEvent(BOOL initiallyOwn, BOOL manualReset, LPCTSTR name, LPSECURITY_ATTRIBUTES security)
    : CSyncObject(name)
{
    own(::CreateEventW(security, manualReset, initiallyOwn, name));
}

BOOL CEvent::Unlock()
{
    return TRUE;
}

CCriticalSection::CCriticalSection()
    : CSyncObject(nullptr)
{
    ::InitializeCriticalSection(&m_sect);
}

CCriticalSection::~CCriticalSection()
{
    ::DeleteCriticalSection(&m_sect);
}

BOOL CCriticalSection::Lock()
{
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Lock(DWORD)
{
    return Lock();
}

BOOL CCriticalSection::Unlock()
{
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}

// CSingleLock

CSingleLock::CSingleLock(CSyncObject* object, BOOL initialLock)
    : m_object(object)
{
    ASSERT(object);
    if (initialLock)
        Lock();
}

CSingleLock::~CSingleLock()
{
    Unlock();
}

BOOL CSingleLock::Lock(DWORD timeout)
{
    ASSERT(!m_locked);
    m_locked = m_object->Lock(timeout);
    return m_locked;
}

BOOL CSingleLock::Unlock()
{
    if (m_locked)
        m_locked = !m_object->Unlock();
    return !m_locked;
}

BOOL CSingleLock::Unlock(LONG count, LPLONG previous)
{
    if (m_locked && m_object->Unlock(count, previous))
        m_locked = FALSE;
    return !m_locked;
}

// CMultiLock

CMultiLock::CMultiLock(CSyncObject* objects[], DWORD count, BOOL initialLock)
    : m_objects(objects)
    , m_locked(count)
{
    ASSERT(objects && count > 0 && count <= MAXIMUM_WAIT_OBJECTS);
    for (DWORD i = 0; i < count; ++i) {
        ASSERT(!objects[i]->IsKindOf(
            RUNTIME_CLASS(CCriticalSection))); // the system cannot wait for several of them
        m_handles.push_back(*objects[i]);
    }
    if (initialLock)
        Lock();
}

CMultiLock::~CMultiLock()
{
    Unlock();
}

DWORD CMultiLock::Lock(DWORD timeout, BOOL waitForAll, DWORD wakeMask)
{
    const auto count = static_cast<DWORD>(m_handles.size());
    const DWORD result =
        wakeMask == 0 ? ::WaitForMultipleObjects(count, m_handles.data(), waitForAll, timeout)
                      : ::MsgWaitForMultipleObjects(count, m_handles.data(), waitForAll, timeout, wakeMask);
    const bool abandoned = result >= WAIT_ABANDONED_0 && result < WAIT_ABANDONED_0 + count;
    const DWORD which = result - (abandoned ? WAIT_ABANDONED_0 : WAIT_OBJECT_0);
    if (which >= count)
        return result;
    if (waitForAll)
        m_locked.assign(count, true);
    else
        m_locked[which] = true;
    return result;
}

BOOL CMultiLock::Unlock()
{
    BOOL all = TRUE;
    for (std::size_t i = 0; i < m_locked.size(); ++i) {
        if (!m_locked[i])
            continue;
        m_locked[i] = !m_objects[i]->Unlock();
        all = all && !m_locked[i];
    }
    return all;
}

BOOL CMultiLock::Unlock(LONG count, LPLONG previous)
{
    BOOL any = FALSE;
    BOOL all = TRUE;
    for (std::size_t i = 0; i < m_locked.size(); ++i) {
        if (!m_locked[i] || !m_objects[i]->IsKindOf(RUNTIME_CLASS(CSemaphore)))
            continue;
        any = TRUE;
        m_locked[i] = !m_objects[i]->Unlock(count, previous);
        all = all && !m_locked[i];
    }
    return any && all;
}

BOOL CMultiLock::IsLocked(DWORD index) const
{
    return index < m_locked.size() && m_locked[index];
}
