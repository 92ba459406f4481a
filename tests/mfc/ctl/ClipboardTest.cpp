// Data sources on the clipboard: who owns them, and when they go.
#include "FakeDataObject.h"

#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

#include <stdexcept>

namespace
{

class Source : public COleDataSource
{
public:
    explicit Source(bool& gone)
        : m_gone(gone)
    {
    }
    ~Source() override { m_gone = true; }

    int rendered = 0;
    bool throws = false;

    BOOL OnRenderGlobalData(LPFORMATETC, HGLOBAL* memory) override
    {
        ++rendered;
        if (throws)
            throw std::runtime_error("cannot render");
        *memory = memoryWith(L"late");
        return TRUE;
    }

private:
    bool& m_gone;
};

std::wstring clipboardText()
{
    COleDataObject data;
    if (!data.AttachClipboard())
        return L"(no clipboard)";
    const HGLOBAL memory = data.GetGlobalData(CF_UNICODETEXT);
    return memory ? takeText(memory) : L"(nothing)";
}

/// Gives the source that the running thread has put on the clipboard.
UINT AFX_CDECL useOle(LPVOID owner)
{
    AfxOleInit();
    *static_cast<COleDataSource**>(owner) = COleDataSource::GetClipboardOwner();
    return 0; // the end of the thread ends OLE
}

struct ClipboardTest : ::testing::Test
{
    ~ClipboardTest() override { ::OleSetClipboard(nullptr); }

    bool gone = false;
    Source* source = new Source(gone); // the clipboard's from SetClipboard on
};

} // namespace

TEST_F(ClipboardTest, TheClipboardOwnsTheSourceUntilOtherDataComes)
{
    source->CacheGlobalData(CF_UNICODETEXT, memoryWith(L"copied"));

    source->SetClipboard();
    EXPECT_EQ(COleDataSource::GetClipboardOwner(), source);
    EXPECT_FALSE(gone);
    EXPECT_EQ(clipboardText(), L"copied");

    ::OleSetClipboard(nullptr);
    EXPECT_TRUE(gone);
    EXPECT_EQ(COleDataSource::GetClipboardOwner(), nullptr);
}

TEST_F(ClipboardTest, ANewSourceTakesThePlaceOfTheFormerOne)
{
    bool secondGone = false;
    auto* second = new Source(secondGone);
    source->CacheGlobalData(CF_UNICODETEXT, memoryWith(L"first"));
    second->CacheGlobalData(CF_UNICODETEXT, memoryWith(L"second"));

    source->SetClipboard();
    second->SetClipboard();

    EXPECT_TRUE(gone);
    EXPECT_FALSE(secondGone);
    EXPECT_EQ(COleDataSource::GetClipboardOwner(), second);
    EXPECT_EQ(clipboardText(), L"second");
    ::OleSetClipboard(nullptr);
    EXPECT_TRUE(secondGone);
}

TEST_F(ClipboardTest, SettingTheSameSourceTwiceKeepsItAlive)
{
    source->CacheGlobalData(CF_UNICODETEXT, memoryWith(L"once"));
    source->SetClipboard();
    source->CacheGlobalData(CF_UNICODETEXT, memoryWith(L"twice"));

    source->SetClipboard();

    EXPECT_FALSE(gone);
    EXPECT_EQ(clipboardText(), L"twice");
    ::OleSetClipboard(nullptr);
    EXPECT_TRUE(gone);
}

TEST_F(ClipboardTest, DelayedDataIsMadeWhenItIsPasted)
{
    source->DelayRenderData(CF_UNICODETEXT);
    source->SetClipboard();
    EXPECT_EQ(source->rendered, 0);

    EXPECT_EQ(clipboardText(), L"late");
    EXPECT_EQ(source->rendered, 1);
}

TEST_F(ClipboardTest, FlushingMakesTheDataIndependent)
{
    source->DelayRenderData(CF_UNICODETEXT);
    source->SetClipboard();

    COleDataSource::FlushClipboard();

    EXPECT_TRUE(gone);
    EXPECT_EQ(COleDataSource::GetClipboardOwner(), nullptr);
    EXPECT_EQ(clipboardText(), L"late");
}

TEST_F(ClipboardTest, FlushingWithoutASourceChangesNothing)
{
    source->CacheGlobalData(CF_UNICODETEXT, memoryWith(L"kept"));
    source->SetClipboard();
    COleDataSource::FlushClipboard();

    COleDataSource::FlushClipboard();

    EXPECT_EQ(clipboardText(), L"kept");
}

TEST_F(ClipboardTest, AnExceptionWhileFlushingComesOut)
{
    source->DelayRenderData(CF_UNICODETEXT);
    source->throws = true;
    source->SetClipboard();

    EXPECT_THROW(COleDataSource::FlushClipboard(), std::runtime_error);
}

TEST_F(ClipboardTest, AnotherThreadsEndLeavesTheSourceAlone)
{
    source->DelayRenderData(CF_UNICODETEXT);
    source->SetClipboard();

    COleDataSource* seen = source;
    CWinThread* const thread = AfxBeginThread(&useOle, &seen, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    EXPECT_EQ(::WaitForSingleObject(thread->m_hThread, 30'000), WAIT_OBJECT_0);
    delete thread;

    EXPECT_EQ(seen, nullptr);
    EXPECT_EQ(source->rendered, 0) << "flushed by the other thread";
    EXPECT_EQ(COleDataSource::GetClipboardOwner(), source);
    COleDataSource::FlushClipboard();
    EXPECT_TRUE(gone);
}

TEST_F(ClipboardTest, OtherProgramsSeeOrdinaryClipboardData)
{
    ovo::testkit::RecordingParent window;
    source->CacheGlobalData(CF_UNICODETEXT, memoryWith(L"plain"));
    source->SetClipboard();

    ASSERT_TRUE(window.OpenClipboard());
    EXPECT_EQ(textIn(::GetClipboardData(CF_UNICODETEXT)), L"plain");
    ::CloseClipboard();
}

TEST_F(ClipboardTest, DataPutThereWithoutASourceIsReadAsWell)
{
    source->InternalRelease();
    ovo::testkit::RecordingParent window;
    ASSERT_TRUE(window.OpenClipboard());
    ::EmptyClipboard();
    ::SetClipboardData(CF_UNICODETEXT, memoryWith(L"by hand"));
    ::CloseClipboard();
    COleDataObject data;

    ASSERT_TRUE(data.AttachClipboard());
    EXPECT_TRUE(data.IsDataAvailable(CF_UNICODETEXT));
    EXPECT_FALSE(data.IsDataAvailable(CF_HDROP));
    EXPECT_EQ(takeText(data.GetGlobalData(CF_UNICODETEXT)), L"by hand");
    EXPECT_EQ(COleDataSource::GetClipboardOwner(), nullptr);
}
