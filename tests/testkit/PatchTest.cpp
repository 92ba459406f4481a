#include <testkit/DebugOutput.h>
#include <testkit/ImportPatch.h>
#include <testkit/TemporaryFiles.h>

#include <afxwin.h>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <thread>

using namespace ovo::testkit;

namespace
{

int s_asked = 0;

HCURSOR WINAPI noCursor(HINSTANCE, LPCWSTR)
{
    ++s_asked;
    return nullptr;
}

void* replacement()
{
    return reinterpret_cast<void*>(&noCursor);
}

} // namespace

TEST(ImportPatch, ReplacesAFunctionWhileItLives)
{
    s_asked = 0;
    {
        const ImportPatch patch(L"ovomfc.dll", "LoadCursorW", replacement());
        EXPECT_EQ(AfxGetApp()->LoadStandardCursor(IDC_ARROW), nullptr);
        EXPECT_EQ(s_asked, 1);
    }
    EXPECT_NE(AfxGetApp()->LoadStandardCursor(IDC_ARROW), nullptr);
    EXPECT_EQ(s_asked, 1);
}

TEST(ImportPatch, LeavesOtherModulesAlone)
{
    s_asked = 0;
    const ImportPatch patch(L"ovomfc.dll", "LoadCursorW", replacement());
    EXPECT_NE(::LoadCursorW(nullptr, IDC_ARROW), nullptr) << "this program's own import";
    EXPECT_EQ(s_asked, 0);
}

TEST(DebugOutput, TakesDownWhatIsWritten)
{
    const DebugOutput output;
    EXPECT_EQ(output.count(L"a leaf"), 0);
    ::OutputDebugStringW(L"a leaf fell");
    ::OutputDebugStringW(L"another");
    EXPECT_EQ(output.count(L"a leaf"), 1);
    EXPECT_EQ(output.lines().size(), 2U);
}

TEST(DebugOutput, TakesDownWhatSeveralThreadsWriteAtATime)
{
    constexpr int kTexts = 200;
    const auto write = [] {
        for (int i = 0; i < kTexts; ++i)
            ::OutputDebugStringW(L"a leaf fell");
    };
    const DebugOutput output;
    std::thread other(write);
    write();
    other.join();
    EXPECT_EQ(output.count(L"a leaf fell"), 2 * kTexts);
}

TEST(DebugOutput, HearsNothingAfterItsEnd)
{
    std::optional<DebugOutput> output(std::in_place);
    output.reset();
    ::OutputDebugStringW(L"unheard");
    EXPECT_TRUE(DebugOutput::lines().empty());
}

TEST(TemporaryFiles, ThatCannotBeMadeFailTheTest)
{
    const TemporaryFiles files{L"beds\\roses.txt"};
    EXPECT_NONFATAL_FAILURE(files.addFile(L"beds"), "beds cannot be made");
    EXPECT_THROW(files.addFolder(L"beds\\roses.txt"), std::filesystem::filesystem_error);
}

TEST(TemporaryFiles, AreGoneAfterwards)
{
    std::wstring folder;
    {
        const TemporaryFiles files{L"beds\\roses.txt"};
        folder = files.folder();
        EXPECT_TRUE(std::filesystem::exists(files.path(L"beds\\roses.txt")));
        EXPECT_NE(TemporaryFiles().folder(), folder) << "each has a folder of its own";
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
}
