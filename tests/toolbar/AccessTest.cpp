// Bars and flyouts as accessibility sees them.
#include "ToolBarScene.h"

#include <gtest/gtest.h>

#include <oleacc.h>

#include <memory>

using namespace ovotest;

namespace
{

struct ReleaseObject
{
    void operator()(IAccessible* object) const { object->Release(); }
};
using Object = std::unique_ptr<IAccessible, ReleaseObject>;

Object objectOf(HWND wnd)
{
    void* found = nullptr;
    ::AccessibleObjectFromWindow(wnd, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &found);
    return Object(static_cast<IAccessible*>(found));
}

VARIANT child(LONG number)
{
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = number;
    return variant;
}

std::wstring taken(HRESULT result, BSTR text)
{
    const std::wstring copy = result == S_OK && text ? text : L"";
    ::SysFreeString(text);
    return copy;
}

std::wstring nameOf(const Object& object, LONG number)
{
    BSTR text = nullptr;
    const HRESULT result = object->get_accName(child(number), &text);
    return taken(result, text);
}

std::wstring actionOf(const Object& object, LONG number)
{
    BSTR text = nullptr;
    const HRESULT result = object->get_accDefaultAction(child(number), &text);
    return taken(result, text);
}

LONG roleOf(const Object& object, LONG number)
{
    VARIANT role{};
    return object->get_accRole(child(number), &role) == S_OK ? role.lVal : -1;
}

LONG stateOf(const Object& object, LONG number)
{
    VARIANT state{};
    return object->get_accState(child(number), &state) == S_OK ? state.lVal : -1;
}

/// Numbers of the bar's buttons are one more than their indices.
constexpr LONG kPlain = BarScene::Plain + 1;
constexpr LONG kLines = BarScene::Lines + 1;
constexpr LONG kGap = BarScene::Gap + 1;

class BarAccess : public ::testing::Test
{
protected:
    BarAccess()
    {
        ::CoInitialize(nullptr);
        scene.bar().SetWindowText(L"Drawing");
        scene.bar().UseAccessibleNames(true);
    }
    ~BarAccess() override { ::CoUninitialize(); }

    BarScene scene;
};

} // namespace

TEST_F(BarAccess, IsThePlatformsUntilTheHostAsks)
{
    scene.bar().UseAccessibleNames(false);
    EXPECT_EQ(scene.bar().SendMessage(WM_GETOBJECT, 0, OBJID_CLIENT), 0);
    scene.bar().UseAccessibleNames(true);
    EXPECT_NE(scene.bar().SendMessage(WM_GETOBJECT, 0, OBJID_CLIENT), 0);
    EXPECT_EQ(scene.bar().SendMessage(WM_GETOBJECT, 0, OBJID_WINDOW), 0) << "the window is the platform's";
}

TEST_F(BarAccess, ABarIsAToolbarWithButtons)
{
    const Object bar = objectOf(scene.bar());
    ASSERT_TRUE(bar);
    long count = 0;
    EXPECT_EQ(bar->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 5);
    EXPECT_EQ(nameOf(bar, CHILDID_SELF), L"Drawing");
    EXPECT_EQ(roleOf(bar, CHILDID_SELF), ROLE_SYSTEM_TOOLBAR);
    EXPECT_EQ(nameOf(bar, kPlain), L"Plain");
    EXPECT_EQ(roleOf(bar, kPlain), ROLE_SYSTEM_PUSHBUTTON);
    EXPECT_EQ(actionOf(bar, kPlain), L"Press");
    EXPECT_EQ(nameOf(bar, kLines), L"Line");
    EXPECT_EQ(roleOf(bar, kLines), ROLE_SYSTEM_BUTTONDROPDOWN);
    EXPECT_TRUE(stateOf(bar, kLines) & STATE_SYSTEM_HASPOPUP);
    EXPECT_EQ(roleOf(bar, kGap), ROLE_SYSTEM_SEPARATOR);
    EXPECT_EQ(nameOf(bar, kGap), L"");
    EXPECT_EQ(actionOf(bar, kGap), L"");
    BSTR text = nullptr;
    const HRESULT described = bar->get_accDescription(child(kPlain), &text);
    EXPECT_EQ(taken(described, text), L"Does something plain");
}

TEST_F(BarAccess, ATextOfItsOwnIsTheName)
{
    scene.bar().SetButtonText(BarScene::Plain, L"Own words");
    EXPECT_EQ(nameOf(objectOf(scene.bar()), kPlain), L"Own words");
}

TEST_F(BarAccess, StatesFollowTheButtons)
{
    const Object bar = objectOf(scene.bar());
    EXPECT_EQ(stateOf(bar, kPlain) & (STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_CHECKED), 0);
    scene.bar().SetButtonStyle(BarScene::Plain, TBBS_CHECKBOX | TBBS_CHECKED | TBBS_DISABLED);
    EXPECT_TRUE(stateOf(bar, kPlain) & STATE_SYSTEM_UNAVAILABLE);
    EXPECT_TRUE(stateOf(bar, kPlain) & STATE_SYSTEM_CHECKED);
    EXPECT_EQ(roleOf(bar, kPlain), ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_EQ(actionOf(bar, kPlain), L"") << "a disabled button cannot be pressed";
    EXPECT_NE(bar->accDoDefaultAction(child(kPlain)), S_OK);
    scene.bar().SetButtonStyle(BarScene::Plain, TBBS_BUTTON | TBBS_HIDDEN);
    EXPECT_TRUE(stateOf(bar, kPlain) & STATE_SYSTEM_INVISIBLE);
}

TEST_F(BarAccess, TheDefaultActionIsTheButtonsCommand)
{
    const Object bar = objectOf(scene.bar());
    EXPECT_EQ(bar->accDoDefaultAction(child(kPlain)), S_OK);
    EXPECT_TRUE(scene.commands().empty()) << "the client does not wait for it";
    GuiThread::settle();
    EXPECT_EQ(scene.commands(), std::vector<UINT>{ID_PLAIN});
}

TEST_F(BarAccess, PlacesAndPoints)
{
    const Object bar = objectOf(scene.bar());
    CRect rect;
    scene.bar().GetItemRect(BarScene::Lines, &rect);
    scene.bar().ClientToScreen(&rect);
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
    ASSERT_EQ(bar->accLocation(&left, &top, &width, &height, child(kLines)), S_OK);
    EXPECT_EQ(CRect(CPoint(left, top), CSize(width, height)), rect);
    VARIANT hit{};
    EXPECT_EQ(bar->accHitTest(rect.CenterPoint().x, rect.CenterPoint().y, &hit), S_OK);
    EXPECT_EQ(hit.lVal, kLines);
    EXPECT_EQ(bar->accHitTest(rect.left, rect.top - 500, &hit), S_FALSE);
}

TEST_F(BarAccess, TheKeyboardIsTheFocus)
{
    const Object bar = objectOf(scene.bar());
    VARIANT focus{};
    EXPECT_EQ(bar->get_accFocus(&focus), S_FALSE);
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT);
    EXPECT_EQ(bar->get_accFocus(&focus), S_OK);
    EXPECT_EQ(focus.lVal, kLines);
    EXPECT_TRUE(stateOf(bar, kLines) & STATE_SYSTEM_FOCUSED);
    EXPECT_FALSE(stateOf(bar, kPlain) & STATE_SYSTEM_FOCUSED);
}

TEST_F(BarAccess, TheEntriesOfAFlyoutHaveNamesAndCanBeChosen)
{
    scene.frame().disabled = {ID_CURVE};
    scene.bar().FocusButtons();
    scene.user.key(VK_RIGHT).key(VK_DOWN).waitFor("the flyout", &BarScene::flyoutShown).then([&] {
        const Object flyout = objectOf(*BarScene::flyout());
        ASSERT_TRUE(flyout);
        EXPECT_EQ(nameOf(flyout, CHILDID_SELF), L"Line") << "that of its button";
        EXPECT_EQ(nameOf(flyout, 1), L"Line");
        EXPECT_EQ(nameOf(flyout, 2), L"Curve");
        EXPECT_EQ(roleOf(flyout, 3), ROLE_SYSTEM_SEPARATOR);
        EXPECT_EQ(nameOf(flyout, 5), L"nameless") << "it has a name, though no string";
        EXPECT_TRUE(stateOf(flyout, 1) & STATE_SYSTEM_FOCUSED);
        EXPECT_TRUE(stateOf(flyout, 2) & STATE_SYSTEM_UNAVAILABLE);
        EXPECT_EQ(flyout->accDoDefaultAction(child(4)), S_OK);
    });
    GuiThread::settle();
    EXPECT_EQ(scene.commands(), std::vector<UINT>{ID_ARC});
    EXPECT_EQ(scene.command(BarScene::Lines), ID_ARC);
}

TEST_F(BarAccess, AControlInTheBarIsAnObjectOfItsOwn)
{
    TBBUTTON place{};
    place.idCommand = IDC_BAR_EDIT;
    place.iBitmap = 100;
    place.fsStyle = TBSTYLE_SEP;
    scene.bar().InsertButton(BarScene::Other, &place);
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 18), &scene.bar(), IDC_BAR_EDIT);
    const Object bar = objectOf(scene.bar());
    IDispatch* object = nullptr;
    EXPECT_EQ(bar->get_accChild(child(kPlain), &object), S_FALSE);
    EXPECT_EQ(bar->get_accChild(child(BarScene::Other + 1), &object), S_OK);
    ASSERT_NE(object, nullptr);
    object->Release();
}

TEST_F(BarAccess, WrongNumbersAreRefused)
{
    const Object bar = objectOf(scene.bar());
    BSTR text = nullptr;
    EXPECT_EQ(bar->get_accName(child(6), &text), E_INVALIDARG);
    EXPECT_EQ(bar->get_accName(child(-1), &text), E_INVALIDARG);
    EXPECT_EQ(bar->get_accName(VARIANT{}, &text), E_INVALIDARG);
    EXPECT_EQ(text, nullptr);
}

TEST_F(BarAccess, TheObjectOutlivesTheBar)
{
    const Object bar = objectOf(scene.bar());
    scene.deleteBar();
    BSTR text = nullptr;
    long count = 0;
    VARIANT variant{};
    EXPECT_EQ(bar->get_accName(child(1), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(bar->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(bar->get_accRole(child(1), &variant), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(bar->accDoDefaultAction(child(1)), CO_E_OBJNOTCONNECTED);
}
