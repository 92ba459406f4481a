// A slider button beside its buddy, another edit control, and a host that takes down what it is asked.
#pragma once

#include <testkit/Desktop.h>
#include <testkit/Picture.h>
#include <testkit/RecordingParent.h>
#include <testkit/Robot.h>

#include <ovoui/sliders/SliderButton.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace ovo::testkit
{

constexpr UINT kBuddyId = 7; // whose string is a tip
constexpr UINT kOtherId = 8; // which has none
constexpr UINT kChanged = CSliderButton::kValueChanged;
constexpr UINT kReleased = CSliderButton::kReleased;

/// Shows a decimal comma and a unit, and writes down its calls.
class HostUtils : public SliderButtonUtils
{
public:
    void fromDisplay(std::wstring& out, const std::wstring& displayed) override;
    void toDisplay(std::wstring& out, const std::wstring& machine) override;
    void hideTip() override { calls.push_back(L"hide"); }
    void showTip(const std::wstring& text) override { calls.push_back(L"show " + text); }

    std::vector<std::wstring> calls;
    std::function<void()> misdeed; ///< done in every conversion
};

class SliderButtonScene : public ::testing::Test
{
protected:
    SliderButtonScene();

    /// Shows the window, at a place of the screen.
    void show(CPoint at = {300, 200});

    std::wstring buddyText() const;
    void setBuddyText(const wchar_t* text) { buddy.SetWindowText(text); }

    /// The open popup; null while there is none.
    static HWND popup();
    static HWND slider();
    static int sliderPos() { return static_cast<int>(::SendMessageW(slider(), TBM_GETPOS, 0, 0)); }
    static bool isOpen() { return popup() != nullptr; }
    static bool isClosed() { return popup() == nullptr; }

    /// Horizontal screen coordinate of the thumb's middle.
    static int thumbX();
    /// Vertical screen coordinate of the slider's middle.
    static int middleOfSlider();

    /// Codes of the messages that the parent got from the button, in order.
    std::vector<UINT> told();

    HostUtils utils;
    RecordingParent parent{CSize(300, 120)};
    CEdit buddy;
    CEdit other;
    std::unique_ptr<CSliderButton> button = std::make_unique<CSliderButton>(utils);
    Robot user;
};

/// What every slider button does, whatever its host asks for.
class SliderButton : public SliderButtonScene
{
protected:
    void open();
};

} // namespace ovo::testkit
