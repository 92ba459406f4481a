// The program of the guide "A first host", as a reader of the guide builds it.
#include <testkit/RunningProgram.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <filesystem>

using namespace ovo::testkit;

namespace
{

/// A folder below the present one, for the program to find.
class Subfolder
{
public:
    Subfolder() { std::filesystem::create_directory(m_path); }
    ~Subfolder() { std::filesystem::remove(m_path); }

private:
    const std::filesystem::path m_path = std::filesystem::current_path() / L"found by the first host";
};

} // namespace

TEST(FirstHost, OpensAFolderAndShowsItsMessageBox)
{
    const Subfolder subfolder;
    RunningProgram program(L"guide_first_host");
    EXPECT_EQ(textOf(program.main()), L"Folders");
    const HWND tree = program.child(program.main(), WC_TREEVIEWW);
    ASSERT_NE(tree, nullptr);
    const auto items = [tree] { return ::SendMessageW(tree, TVM_GETCOUNT, 0, 0); };
    EXPECT_EQ(items(), 1);

    program.click(tree, CPoint(60, 8));
    program.tryUntil(
        "the folder to open", [&] { program.key(VK_RIGHT); }, [&] { return items() > 1; });
    program.key(VK_RETURN);
    const HWND box = program.window(L"Folder");
    EXPECT_TRUE(::IsWindowVisible(box));
    program.key(VK_ESCAPE);
    program.waitFor("the box to go", [box] { return !::IsWindow(box); });

    program.closeByKeys();
    EXPECT_EQ(program.waitForEnd(), 0u);
}
