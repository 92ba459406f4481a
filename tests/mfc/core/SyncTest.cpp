// Threads that wait for each other.
#include <afxmt.h>

#include <gtest/gtest.h>

#include <thread>

namespace
{

/// What another thread gets from a call.
template <class Call>
auto elsewhere(Call call)
{
    decltype(call()) result{};
    std::thread([&] { result = call(); }).join();
    return result;
}

} // namespace

TEST(Sync, ACriticalSectionLetsOneThreadInAtATime)
{
    CCriticalSection section;
    int count = 0;
    const auto work = [&] {
        for (int i = 0; i < 20000; ++i) {
            CSingleLock lock(&section, TRUE);
            ++count;
        }
    };
    std::thread other(work);
    work();
    other.join();
    EXPECT_EQ(count, 40000);
}

TEST(Sync, ACriticalSectionLetsItsThreadInAgain)
{
    CCriticalSection section;
    EXPECT_TRUE(section.Lock());
    EXPECT_TRUE(section.Lock(0));
    CRITICAL_SECTION* plain = section;
    EXPECT_FALSE(elsewhere([=] { return ::TryEnterCriticalSection(plain) != FALSE; }));
    section.Unlock();
    section.Unlock();
    EXPECT_TRUE(elsewhere([=] {
        const bool in = ::TryEnterCriticalSection(plain) != FALSE;
        if (in)
            ::LeaveCriticalSection(plain);
        return in;
    }));
}

TEST(Sync, AMutexBelongsToOneThread)
{
    CMutex mutex(TRUE);
    EXPECT_FALSE(elsewhere([&] { return mutex.Lock(0); }));
    EXPECT_TRUE(mutex.Unlock());
    EXPECT_TRUE(elsewhere([&] { return mutex.Lock(0) && mutex.Unlock(); }));
    EXPECT_FALSE(mutex.Unlock()) << "it is not this thread's";
}

TEST(Sync, AMutexWhoseThreadHasEndedIsFree)
{
    CMutex mutex;
    EXPECT_TRUE(elsewhere([&] { return mutex.Lock(0); }));
    EXPECT_TRUE(mutex.Lock(0));
    EXPECT_TRUE(mutex.Unlock());
}

TEST(Sync, ASemaphoreLetsANumberOfThreadsIn)
{
    CSemaphore semaphore(2, 2);
    EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_TRUE(semaphore.Lock(0));
    EXPECT_FALSE(semaphore.Lock(0));
    LONG before = -1;
    EXPECT_TRUE(semaphore.Unlock(2, &before));
    EXPECT_EQ(before, 0);
    EXPECT_FALSE(semaphore.Unlock()) << "more than were let in";
}

TEST(Sync, AnEventLetsOneInOrAll)
{
    CEvent one;
    EXPECT_FALSE(one.Lock(0));
    one.SetEvent();
    EXPECT_TRUE(one.Lock(0));
    EXPECT_FALSE(one.Lock(0)) << "it has reset itself";

    CEvent all(TRUE, TRUE);
    EXPECT_TRUE(all.Lock(0));
    EXPECT_TRUE(all.Unlock());
    EXPECT_TRUE(all.Lock(0));
    all.ResetEvent();
    EXPECT_FALSE(all.Lock(0));
}

TEST(Sync, ANameIsKnownToOthers)
{
    CEvent one(FALSE, TRUE, L"ovoui test event");
    CEvent same(FALSE, TRUE, L"ovoui test event");
    one.SetEvent();
    EXPECT_TRUE(same.Lock(0));
    EXPECT_THROW(
        {
            try {
                CMutex mutex(FALSE, L"ovoui test event"); // the name stands for something else
            } catch (CResourceException* exception) {
                exception->Delete();
                throw 1;
            }
        },
        int);
}

TEST(Sync, ALockLetsGoAtTheEndOfItsScope)
{
    CSemaphore semaphore(1, 1);
    {
        CSingleLock lock(&semaphore);
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_TRUE(lock.Lock(0));
        EXPECT_TRUE(lock.IsLocked());
        CSingleLock second(&semaphore);
        EXPECT_FALSE(second.Lock(0));
        EXPECT_FALSE(second.IsLocked());
    }
    CSingleLock lock(&semaphore, TRUE);
    EXPECT_TRUE(lock.IsLocked());
    EXPECT_TRUE(lock.Unlock());
    EXPECT_TRUE(lock.Unlock()) << "there is nothing left to let go";
    EXPECT_FALSE(lock.IsLocked());
}

TEST(Sync, ALockOnSeveralWaitsForOneOrAll)
{
    CEvent first;
    CEvent second;
    CSyncObject* objects[] = {&first, &second};
    CMultiLock lock(objects, 2);
    EXPECT_EQ(lock.Lock(0, FALSE), DWORD{WAIT_TIMEOUT});
    second.SetEvent();
    EXPECT_EQ(lock.Lock(0, FALSE), WAIT_OBJECT_0 + 1);
    EXPECT_FALSE(lock.IsLocked(0));
    EXPECT_TRUE(lock.IsLocked(1));
    EXPECT_TRUE(lock.Unlock());
    EXPECT_FALSE(lock.IsLocked(1));

    first.SetEvent();
    EXPECT_EQ(lock.Lock(0, TRUE), DWORD{WAIT_TIMEOUT}) << "one of two";
    second.SetEvent();
    EXPECT_EQ(lock.Lock(0, TRUE), DWORD{WAIT_OBJECT_0});
    EXPECT_TRUE(lock.IsLocked(0) && lock.IsLocked(1));
}

TEST(Sync, ALockOnSeveralLetsGoOfItsSemaphores)
{
    CEvent event(TRUE, TRUE);
    CSemaphore semaphore(2, 2);
    CSyncObject* objects[] = {&event, &semaphore};
    CMultiLock lock(objects, 2);
    EXPECT_FALSE(lock.Unlock(1)) << "nothing is held yet";
    EXPECT_EQ(lock.Lock(0, FALSE), DWORD{WAIT_OBJECT_0});
    EXPECT_FALSE(lock.Unlock(1)) << "an event is no semaphore";

    EXPECT_LT(lock.Lock(0, TRUE), DWORD{WAIT_OBJECT_0 + 2});
    EXPECT_FALSE(lock.Unlock(5)) << "more than there are";
    EXPECT_TRUE(lock.IsLocked(1));
    LONG before = 0;
    EXPECT_TRUE(lock.Unlock(1, &before));
    EXPECT_EQ(before, 1);
    EXPECT_FALSE(lock.IsLocked(1));
    EXPECT_TRUE(lock.IsLocked(0));
    EXPECT_FALSE(lock.Unlock(1)) << "it has been let go";
}

TEST(Sync, ALockOnSeveralWakesForMessages)
{
    CEvent event;
    CSyncObject* objects[] = {&event};
    CMultiLock lock(objects, 1);
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_APP, 0, 0);
    EXPECT_EQ(lock.Lock(5000, FALSE, QS_POSTMESSAGE), WAIT_OBJECT_0 + 1);
    EXPECT_FALSE(lock.IsLocked(0));
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    }
}
