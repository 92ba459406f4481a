// The whole gallery as a screen reader tells of it, beside the list in accessible.txt.
#include "AccessibleText.h"
#include "GalleryScene.h"

#include <testkit/AccessibleView.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace ovo::testkit;

namespace
{

class GalleryForReaders : public ::testing::Test
{
protected:
    GalleryScene scene;
};

std::string utf8Of(const std::wstring& text)
{
    std::string out(
        static_cast<std::size_t>(::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                                       nullptr, 0, nullptr, nullptr)),
        '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), out.data(),
                          static_cast<int>(out.size()), nullptr, nullptr);
    return out;
}

std::wstring wideOf(const std::string& text)
{
    std::wstring out(static_cast<std::size_t>(::MultiByteToWideChar(
                         CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0)),
                     L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), out.data(),
                          static_cast<int>(out.size()));
    return out;
}

std::vector<std::wstring> listed()
{
    const HRSRC found = ::FindResourceW(nullptr, L"accessible.txt", RT_RCDATA);
    const HGLOBAL loaded = ::LoadResource(nullptr, found);
    const std::string text(static_cast<const char*>(::LockResource(loaded)),
                           ::SizeofResource(nullptr, found));
    std::istringstream stream(text);
    std::vector<std::wstring> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(wideOf(line));
    return lines;
}

/// Keeps what was read beside the test program, to be compared and copied.
std::filesystem::path keep(const std::vector<std::wstring>& lines)
{
    const std::filesystem::path path = std::filesystem::absolute("accessible.txt");
    std::ofstream file(path, std::ios::binary);
    for (const std::wstring& line : lines)
        file << utf8Of(line) << '\n';
    return path;
}

} // namespace

TEST_F(GalleryForReaders, EveryPageReadsAsListed)
{
    std::vector<std::wstring> read;
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        read.push_back(std::wstring(L"= ") + entry.name);
        const std::vector<std::wstring> page = readAloud(scene.page());
        read.insert(read.end(), page.begin(), page.end());
    }
    const std::wstring difference = differenceOf(listed(), read);
    if (difference.empty())
        return;
    const std::filesystem::path kept = keep(read);
    ADD_FAILURE() << "- is listed in tests/gallery/accessible.txt, + is what was read:\n"
                  << utf8Of(difference) << "All that was read is in " << kept.string();
}

/// Those of the system are named by it, by labels or texts.
TEST_F(GalleryForReaders, EveryControlOfTheLibraryHasAName)
{
    for (const PageEntry& entry : pageTable()) {
        scene.frame().openPage(entry);
        for (const HWND control : scene.controls()) {
            if (answersItself(control)) {
                EXPECT_FALSE(AccessibleView(control).name().empty())
                    << ::testing::PrintToString(std::wstring(entry.name)) << ", control "
                    << ::GetDlgCtrlID(control) << ": " << utf8Of(readAloudAlone(control));
            }
        }
    }
}

TEST(AccessibleText, ADifferenceNamesPageAndLines)
{
    const std::vector<std::wstring> before = {L"= first", L"button \"a\"", L"= second", L"slider \"b\"",
                                              L"list"};
    EXPECT_EQ(differenceOf(before, before), L"");
    std::vector<std::wstring> after = before;
    after[3] = L"slider";
    EXPECT_EQ(differenceOf(before, after), L"= second\n-slider \"b\"\n+slider\n");
    after = before;
    after.erase(after.begin() + 1);
    after.push_back(L"edit");
    EXPECT_EQ(differenceOf(before, after), L"= first\n-button \"a\"\n= second\n+edit\n");
}
