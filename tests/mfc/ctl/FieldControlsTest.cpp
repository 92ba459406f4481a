// Hot keys, IP addresses, animations.
#include <afxcmn.h>
#include <afxwin.h>
#include <gtest/gtest.h>
#include <testkit/Desktop.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

using namespace ovo::testkit;

TEST(HotKeyCtrl, KeepsAKeyWithItsModifiers)
{
    RecordingParent parent;
    CHotKeyCtrl field;
    ASSERT_TRUE(field.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 160, 24), &parent, 7));
    EXPECT_EQ(field.GetHotKeyName(), L"");
    field.SetHotKey('K', HOTKEYF_CONTROL | HOTKEYF_SHIFT);
    EXPECT_EQ(field.GetHotKey(), DWORD{MAKEWORD('K', HOTKEYF_CONTROL | HOTKEYF_SHIFT)});
    WORD key = 0;
    WORD modifiers = 0;
    field.GetHotKey(key, modifiers);
    EXPECT_EQ(key, 'K');
    EXPECT_EQ(modifiers, HOTKEYF_CONTROL | HOTKEYF_SHIFT);
    EXPECT_EQ(field.GetHotKeyName(), CHotKeyCtrl::GetKeyName(VK_CONTROL, FALSE) + L" + " +
                                         CHotKeyCtrl::GetKeyName(VK_SHIFT, FALSE) + L" + K");
}

TEST(HotKeyCtrl, TakesTheKeyThatIsPressed)
{
    RecordingParent parent;
    CHotKeyCtrl field;
    field.CreateEx(0, WS_VISIBLE, CRect(0, 0, 160, 24), &parent, 7);
    present(parent);
    field.SetFocus();
    Robot().holding(VK_CONTROL).key('J');
    EXPECT_EQ(field.GetHotKey(), DWORD{MAKEWORD('J', HOTKEYF_CONTROL)});
    field.SetRules(HKCOMB_NONE, HOTKEYF_ALT);
    Robot().key('B');
    EXPECT_EQ(field.GetHotKey(), DWORD{MAKEWORD('B', HOTKEYF_ALT)}) << "a key alone is not allowed any more";
}

TEST(IPAddressCtrl, KeepsAnAddress)
{
    RecordingParent parent;
    CIPAddressCtrl field;
    ASSERT_TRUE(field.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 160, 24), &parent, 7));
    EXPECT_TRUE(field.IsBlank());
    field.SetAddress(192, 168, 0, 17);
    DWORD address = 0;
    EXPECT_EQ(field.GetAddress(address), 4);
    EXPECT_EQ(address, 0xC0A80011u);
    BYTE parts[4]{};
    EXPECT_EQ(field.GetAddress(parts[0], parts[1], parts[2], parts[3]), 4);
    EXPECT_EQ(parts[0], 192);
    EXPECT_EQ(parts[3], 17);
    EXPECT_FALSE(field.IsBlank());
    field.SetAddress(DWORD{0x0A000001});
    field.GetAddress(address);
    EXPECT_EQ(address, 0x0A000001u);
    field.ClearAddress();
    EXPECT_TRUE(field.IsBlank());
    EXPECT_EQ(field.GetAddress(address), 0);
}

TEST(IPAddressCtrl, TakesWhatIsTypedIntoTheFieldWithTheFocus)
{
    RecordingParent parent;
    CIPAddressCtrl field;
    field.CreateEx(0, WS_VISIBLE, CRect(0, 0, 160, 24), &parent, 7);
    present(parent);
    field.SetFieldFocus(1);
    Robot().type(L"42");
    BYTE parts[4]{};
    EXPECT_EQ(field.GetAddress(parts[0], parts[1], parts[2], parts[3]), 1);
    EXPECT_EQ(parts[1], 42);
    field.SetFieldRange(1, 10, 20);
    EXPECT_EQ(parts[1], 42);
}

TEST(AnimateCtrl, RefusesWhatIsNoClip)
{
    RecordingParent parent;
    CAnimateCtrl clip;
    ASSERT_TRUE(clip.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 60), &parent, 7));
    EXPECT_FALSE(clip.Open(L"C:\\there is no such clip.avi"));
    EXPECT_FALSE(clip.Open(4711u));
}
