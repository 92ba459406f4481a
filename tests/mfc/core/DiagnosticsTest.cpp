// Assertions, traces, and whether memory can be read.
#include <testkit/DebugOutput.h>

#include <afxwin.h>

#include <gtest/gtest.h>

using ovo::testkit::DebugOutput;

namespace
{

/// Two pages, of which the second cannot be touched.
class GuardedPage
{
public:
    GuardedPage()
        : m_memory(static_cast<BYTE*>(::VirtualAlloc(nullptr, 2 * kPage, MEM_RESERVE, PAGE_READWRITE)))
    {
        ::VirtualAlloc(m_memory, kPage, MEM_COMMIT, PAGE_READWRITE);
    }
    ~GuardedPage() { ::VirtualFree(m_memory, 0, MEM_RELEASE); }
    GuardedPage(const GuardedPage&) = delete;
    GuardedPage& operator=(const GuardedPage&) = delete;

    BYTE* end() const { return m_memory + kPage; }
    void makeReadOnly()
    {
        DWORD old = 0;
        ::VirtualProtect(m_memory, kPage, PAGE_READONLY, &old);
    }

private:
    static constexpr SIZE_T kPage = 4096;
    BYTE* m_memory;
};

class CChecked : public CObject
{
public:
    void AssertValid() const override { ++checks; }
    mutable int checks = 0;
};

} // namespace

TEST(ValidAddress, ReachesToTheEndOfTheMemory)
{
    const GuardedPage page;
    EXPECT_TRUE(AfxIsValidAddress(page.end() - 16, 16));
    EXPECT_FALSE(AfxIsValidAddress(page.end() - 16, 17));
    EXPECT_FALSE(AfxIsValidAddress(page.end(), 1));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 0));
}

TEST(ValidAddress, TellsReadingFromWriting)
{
    GuardedPage page;
    page.makeReadOnly();
    EXPECT_TRUE(AfxIsValidAddress(page.end() - 16, 16, FALSE));
    EXPECT_FALSE(AfxIsValidAddress(page.end() - 16, 16, TRUE));
}

TEST(ValidString, EndsWithinTheMemory)
{
    const GuardedPage page;
    auto* const text = reinterpret_cast<wchar_t*>(page.end()) - 4;
    ::lstrcpyW(text, L"abc");
    EXPECT_TRUE(AfxIsValidString(text));
    EXPECT_TRUE(AfxIsValidString(text, 4));
    EXPECT_FALSE(AfxIsValidString(text, 5));
    text[3] = L'd';
    EXPECT_FALSE(AfxIsValidString(text));
    EXPECT_TRUE(AfxIsValidString(text, 4));
    EXPECT_FALSE(AfxIsValidString(nullptr));
}

TEST(Verify, AlwaysEvaluatesItsCondition)
{
    int count = 0;
    VERIFY(++count > 0);
    EXPECT_EQ(count, 1);
}

TEST(Ensure, ThrowsWhenItDoesNotHold)
{
    EXPECT_NO_THROW(ENSURE(1 + 1 == 2));
    try {
        ENSURE(1 + 1 == 3);
        ADD_FAILURE() << "nothing was thrown";
    } catch (CInvalidArgException* exception) {
        exception->Delete();
    }
}

TEST(Traces, TakeFormatsAndArguments)
{
    const DebugOutput output;
    AfxTrace(L"plain\n");
    AfxTrace(L"%d %s %.1f\n", 1, L"two", 3.0);
    const CString word = L"oak";
    AfxTrace(L"%s|%d|%s\n", word, 7, word + L"s");
    AfxTrace("narrow %s %S\n", "ash", word);
    AfxTrace(L"%s\n", CString(L'x', 5000));
    EXPECT_EQ(output.lines(),
              (std::vector<std::wstring>{L"plain\n", L"1 two 3.0\n", L"oak|7|oaks\n", L"narrow ash oak\n",
                                         std::wstring(5000, L'x') + L"\n"}));
}

TEST(Traces, TheMacrosAreThere)
{
    const DebugOutput output;
    TRACE0("plain");
    TRACE1("%s", CString(L"one"));
    TRACE2("%d %s", 1, L"two");
    TRACE3("%d %s %.1f", 1, L"two", 3.0);
    TRACE(_T("%s"), CString(L"oak"));
#if defined(OVO_ASSERTIONS) || !defined(NDEBUG)
    EXPECT_EQ(output.lines(), (std::vector<std::wstring>{L"plain", L"one", L"1 two", L"1 two 3.0", L"oak"}));
#else
    EXPECT_TRUE(output.lines().empty());
#endif
}

#ifdef OVO_ASSERTIONS

TEST(AssertDeathTest, SaysWhereAndEndsTheProgram)
{
    EXPECT_DEATH(ASSERT(1 + 1 == 3), "DiagnosticsTest.cpp.*assertion failed");
    EXPECT_DEATH(VERIFY(1 + 1 == 3), "DiagnosticsTest.cpp.*assertion failed");
}

TEST(AssertDeathTest, AnInvalidObjectIsFound)
{
    const CObject* none = nullptr;
    EXPECT_DEATH(ASSERT_VALID(none), "assertion failed");
    EXPECT_DEATH(ASSERT_KINDOF(CWnd, AfxGetApp()), "assertion failed");
}

TEST(Assert, AValidObjectIsAskedToCheckItself)
{
    const CChecked object;
    ASSERT_VALID(&object);
    EXPECT_EQ(object.checks, 1);
    ASSERT(object.checks == 1);
    ASSERT_KINDOF(CWinApp, AfxGetApp());
}

#else

TEST(Assert, IsNotEvenEvaluatedWithoutAssertions)
{
    int count = 0;
    ASSERT(++count > 0);
    const CChecked object;
    ASSERT_VALID(&object);
    EXPECT_EQ(count + object.checks, 0);
}

#endif
