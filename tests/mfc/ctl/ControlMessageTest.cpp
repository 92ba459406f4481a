// The messages behind the standard controls' members that Wine's controls do not answer, or not visibly.
#include "MessageSpy.h"

#include <gtest/gtest.h>
#include <testkit/RecordingParent.h>

using ovo::testkit::RecordingParent;

namespace
{

template <class Control>
struct Spied
{
    explicit Spied(DWORD style = 0) { spy.Create(WS_CHILD | style, CRect(0, 0, 100, 50), &parent, 7); }

    RecordingParent parent;
    MessageSpy<Control> spy;
};

template <class Control>
struct Captioned
{
    Captioned() { spy.Create(L"", WS_CHILD, CRect(0, 0, 100, 50), &parent, 7); }

    RecordingParent parent;
    MessageSpy<Control> spy;
};

} // namespace

TEST(ControlMessages, OfStatics)
{
    Captioned<CStatic> scene;
    auto& spy = scene.spy;
    const auto handle = reinterpret_cast<HANDLE>(0x1234);

    EXPECT_EQ(spy.of([=](CStatic& c) { c.SetCursor(static_cast<HCURSOR>(handle)); }),
              (Sent{STM_SETIMAGE, IMAGE_CURSOR, 0x1234}));
    EXPECT_EQ(spy.of([](CStatic& c) { c.GetCursor(); }), (Sent{STM_GETIMAGE, IMAGE_CURSOR}));
    EXPECT_EQ(spy.of([=](CStatic& c) { c.SetEnhMetaFile(static_cast<HENHMETAFILE>(handle)); }),
              (Sent{STM_SETIMAGE, IMAGE_ENHMETAFILE, 0x1234}));
    EXPECT_EQ(spy.of([](CStatic& c) { c.GetEnhMetaFile(); }), (Sent{STM_GETIMAGE, IMAGE_ENHMETAFILE}));
}

TEST(ControlMessages, OfButtons)
{
    Captioned<CButton> scene;
    auto& spy = scene.spy;
    BUTTON_SPLITINFO info{};

    EXPECT_EQ(spy.of([](CButton& c) { c.SetCursor(reinterpret_cast<HCURSOR>(0x99)); }),
              (Sent{BM_SETIMAGE, IMAGE_CURSOR, 0x99}));
    EXPECT_EQ(spy.of([](CButton& c) { c.GetCursor(); }), (Sent{BM_GETIMAGE, IMAGE_CURSOR}));
    EXPECT_EQ(spy.of([](CButton& c) { c.SetElevationRequired(TRUE); }), (Sent{BCM_SETSHIELD, 0, TRUE}));
    EXPECT_EQ(spy.of([](CButton& c) { c.SetDropDownState(TRUE); }), (Sent{BCM_SETDROPDOWNSTATE, TRUE}));
    EXPECT_EQ(spy.of([&](CButton& c) { c.GetSplitInfo(&info); }),
              (Sent{BCM_GETSPLITINFO, 0, asLParam(&info)}));
    EXPECT_EQ(spy.of([&](CButton& c) { c.SetSplitInfo(&info); }),
              (Sent{BCM_SETSPLITINFO, 0, asLParam(&info)}));
    EXPECT_EQ(spy.of([](CButton& c) { c.SetNote(L""); }).message, static_cast<UINT>(BCM_SETNOTE));
}

TEST(ControlMessages, OfEdits)
{
    Spied<CEdit> scene;
    auto& spy = scene.spy;
    EDITBALLOONTIP tip{};
    int start = 0;
    int end = 0;

    EXPECT_EQ(spy.allOf([](CEdit& c) { c.SetSel(2, 3); }),
              (std::vector<Sent>{{EM_SETSEL, 2, 3}, {EM_SCROLLCARET}}));
    EXPECT_EQ(spy.allOf([](CEdit& c) { c.SetSel(2, 3, TRUE); }), (std::vector<Sent>{{EM_SETSEL, 2, 3}}));
    EXPECT_EQ(spy.of([](CEdit& c) { c.FmtLines(TRUE); }), (Sent{EM_FMTLINES, TRUE}));
    EXPECT_EQ(spy.of([](CEdit& c) { c.SetHandle(reinterpret_cast<HLOCAL>(0x55)); }),
              (Sent{EM_SETHANDLE, 0x55}));
    EXPECT_EQ(spy.of([](CEdit& c) { c.GetHandle(); }), (Sent{EM_GETHANDLE}));
    EXPECT_EQ(spy.of([](CEdit& c) { c.SetHighlight(4, 9); }), (Sent{EM_SETHILITE, 4, 9}));
    spy.answer = MAKELONG(4, 9);
    EXPECT_EQ(spy.of([&](CEdit& c) { c.GetHighlight(&start, &end); }), (Sent{EM_GETHILITE}));
    EXPECT_EQ(start, 4);
    EXPECT_EQ(end, 9);
    EXPECT_EQ(spy.of([&](CEdit& c) { c.ShowBalloonTip(&tip); }),
              (Sent{EM_SHOWBALLOONTIP, 0, asLParam(&tip)}));
    EXPECT_EQ(spy.of([](CEdit& c) { c.ShowBalloonTip(L"Title", L"Text"); }).message,
              static_cast<UINT>(EM_SHOWBALLOONTIP));
    EXPECT_EQ(spy.of([](CEdit& c) { c.HideBalloonTip(); }), (Sent{EM_HIDEBALLOONTIP}));
}

TEST(ControlMessages, OfListBoxes)
{
    Spied<CListBox> scene;
    auto& spy = scene.spy;
    const wchar_t* files = L"*.txt";
    const int stop = 8;
    int stops[] = {4, 8};

    EXPECT_EQ(spy.of([=](CListBox& c) { c.Dir(DDL_DRIVES, files); }),
              (Sent{LB_DIR, DDL_DRIVES, asLParam(files)}));
    EXPECT_EQ(spy.of([](CListBox& c) { c.InitStorage(100, 5000); }), (Sent{LB_INITSTORAGE, 100, 5000}));
    EXPECT_EQ(spy.of([](CListBox& c) { c.GetListBoxInfo(); }), (Sent{LB_GETLISTBOXINFO}));
    EXPECT_EQ(spy.of([](CListBox& c) { c.GetLocale(); }), (Sent{LB_GETLOCALE}));
    EXPECT_EQ(spy.of([](CListBox& c) { c.SetLocale(1031); }), (Sent{LB_SETLOCALE, 1031}));
    EXPECT_EQ(spy.of([](CListBox& c) { c.SetColumnWidth(70); }), (Sent{LB_SETCOLUMNWIDTH, 70}));
    EXPECT_EQ(spy.of([](CListBox& c) { c.SetItemHeight(2, 30); }), (Sent{LB_SETITEMHEIGHT, 2, 30}));
    EXPECT_EQ(spy.of([](CListBox& c) { c.SetTabStops(); }), (Sent{LB_SETTABSTOPS}));
    EXPECT_EQ(spy.of([&](CListBox& c) { c.SetTabStops(stop); }), (Sent{LB_SETTABSTOPS, 1, asLParam(&stop)}));
    EXPECT_EQ(spy.of([&](CListBox& c) { c.SetTabStops(2, stops); }),
              (Sent{LB_SETTABSTOPS, 2, asLParam(stops)}));
}

TEST(ControlMessages, OfComboBoxes)
{
    Spied<CComboBox> scene(CBS_DROPDOWN);
    auto& spy = scene.spy;
    const wchar_t* files = L"*.txt";
    wchar_t buffer[5];

    EXPECT_EQ(spy.of([=](CComboBox& c) { c.Dir(DDL_DRIVES, files); }),
              (Sent{CB_DIR, DDL_DRIVES, asLParam(files)}));
    EXPECT_EQ(spy.of([](CComboBox& c) { c.InitStorage(100, 5000); }), (Sent{CB_INITSTORAGE, 100, 5000}));
    EXPECT_EQ(spy.of([](CComboBox& c) { c.GetLocale(); }), (Sent{CB_GETLOCALE}));
    EXPECT_EQ(spy.of([](CComboBox& c) { c.SetLocale(1031); }), (Sent{CB_SETLOCALE, 1031}));
    EXPECT_EQ(spy.of([](CComboBox& c) { c.GetTopIndex(); }), (Sent{CB_GETTOPINDEX}));
    EXPECT_EQ(spy.of([](CComboBox& c) { c.SetTopIndex(3); }), (Sent{CB_SETTOPINDEX, 3}));
    EXPECT_EQ(spy.of([](CComboBox& c) { c.SetItemHeight(-1, 20); }),
              (Sent{CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), 20}));
    EXPECT_EQ(spy.of([=](CComboBox& c) { c.SetCueBanner(files); }),
              (Sent{CB_SETCUEBANNER, 0, asLParam(files)}));
    EXPECT_EQ(spy.of([&](CComboBox& c) { c.GetCueBanner(buffer, 5); }),
              (Sent{CB_GETCUEBANNER, asWParam(buffer), 5}));
    EXPECT_STREQ(scene.spy.GetCueBanner(), L"") << "there is none";
}
