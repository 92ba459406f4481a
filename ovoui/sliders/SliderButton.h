/// A small button beside an edit control, its buddy, that drops a slider for the buddy's number.
///
///     m_slider.SubclassDlgItem(IDC_SIZE_SLIDER, this); // a static control with a tab stop
///     m_slider.SetBuddy(m_size);
///     m_slider.SetType(CSliderButton::SliderLogarithmic);
///     m_slider.SetRange(0.1, 1000.0, 2);
///
/// The user clicks the button and moves the slider, or presses, drags straight onto the thumb and lets go.
/// The popup never takes the activation by itself: the arrow keys, Page Up and Down, Home and End of the
/// button move the slider while it is open; Tab and Enter close it, Escape also puts back the text from
/// before. Accessibility sees a slider with the name of the buddy's label and the buddy's text for its value.
#pragma once

#include <ovoui/export.h>
#include <ovoui/frame/Lifeline.h>
#include <ovoui/sliders/PopupSlider.h>
#include <ovoui/sliders/SliderButtonUtils.h>

#include <afxwin.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ovoui::sliders
{
struct ExchangedButton;
}

/// The buddy's parent is sent kValueChanged whenever the slider has rewritten the buddy's text, and kReleased
/// when the button is released, after the buddy got the focus; wParam is the buddy, lParam 0. It may destroy
/// the button or the buddy in both, and so may the operations of SliderButtonUtils.
class OVOUI_API CSliderButton : public CStatic
{
public:
    /// How the slider's positions stand for numbers.
    enum SliderType
    {
        SliderInteger,     ///< the slider's positions are the numbers
        SliderLinear,      ///< a hundred steps from low to high
        SliderLogarithmic, ///< equal steps are equal ratios; both ends have the same sign and are not zero
        SliderSquareRoot, ///< the number grows with the square of the way; exact both ways only when low is 0
    };

    /// Sent to the buddy's parent: the slider has rewritten the buddy's text.
    static constexpr UINT kValueChanged = 3600;
    /// Sent to the buddy's parent: the button was released.
    static constexpr UINT kReleased = 3601;

    /// `utils` belongs to the host and outlives the button.
    explicit CSliderButton(SliderButtonUtils& utils);
    ~CSliderButton() override;

    /// Null: none, and the slider changes nothing. The tip is the string whose id is the buddy's control id.
    void SetBuddy(HWND buddy);
    /// How positions stand for numbers; SliderInteger at first.
    void SetType(SliderType type);

    /// From `low` to `high`, for SliderInteger; 0 to 100 at first.
    void SetRange(int low, int high);

    /// From `low` to `high` for the other types, with this many `decimals` behind the decimal sign; 1 to 100
    /// with two at first.
    void SetRange(double low, double high, int decimals);

    /// The slider's range in pages, which is what a click beside the thumb moves it by; 10 at first, never 0.
    void SetPages(int pages);

    /// The edit control beside it; null without one.
    HWND Buddy() const;

    /// The number that the buddy shows; none when its text does not begin with one.
    std::optional<double> Number() const;
    /// Shows a number in the buddy, without a notification.
    void ShowNumber(double number);
    /// The lesser and the greater end of the range.
    std::pair<double, double> Limits() const;

    /// Writes the slider's number into the buddy and tells the buddy's parent.
    void SetValue();

    /// Closes the popup and puts back the text that the buddy had when it opened.
    void cancelPopup();

    // Off unless asked for

    /// Maps numbers by functions of the host in place of the type's: `shareOf` says how far a number lies
    /// from the low end (0) to the high end (1), `numberAt` is the way back. Counts for every type but
    /// SliderInteger. False, and nothing changes, when the numbers of the hundred steps neither rise nor fall
    /// throughout, or do not lead back to their steps. Two empty functions bring the type's mapping back.
    bool SetMapping(std::function<double(double number)> shareOf,
                    std::function<double(double share)> numberAt);

    /// Marks below the slider, from the next time on that the popup opens. Numbers beyond the ends have none.
    void SetTicks(std::vector<double> numbers);

    /// Whether the buddy's text is shown above the thumb while the popup is open.
    void ShowBubble(bool show);

    /// Whether the mouse wheel over the button or the buddy moves the number by a step of the slider.
    void StepByWheel(bool step);

    /// Whether Shift makes steps of the wheel and of the arrow keys ten times finer, though never finer than
    /// the decimals.
    void StepFinelyByShift(bool finely);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    void PreSubclassWindow() override;

    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg LRESULT OnGetObject(WPARAM wParam, LPARAM lParam);
    afx_msg void OnCaptureChanged(CWnd* wnd);
    afx_msg void OnDestroy();
    afx_msg void OnEnable(BOOL enable);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* other);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* other);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg LRESULT OnThemeChanged(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnUnpress(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    friend struct ovoui::sliders::ExchangedButton;

    struct Parts;

    // popup
    void ShowPopup(const CPoint& at);
    void HidePopup();
    void placePopup(const CPoint& at);
    void dismiss();
    void dismissFor(HWND pressed);
    void putTextBack();
    void showTicks();
    void updateBubble();

    // pressed and released
    void SetPressed(bool pressed);
    bool press(const CPoint& at);
    CPoint middle() const;

    // number
    void SetSliderPos();
    const std::wstring& readBuddy() const;
    bool machineText(std::wstring& text) const;
    std::optional<std::wstring> displayed(const std::wstring& machine) const;
    bool showText(const std::wstring& machine);
    void setBuddyText(const std::wstring& text);
    void stepBy(double steps);
    bool tellParent(UINT message);
    std::wstring actionName() const;

    // input
    void enterTip();
    bool takesKey(const MSG& message);
    void turnWheel(int delta);
    void hearBuddyWheel();

    CPopupSlider m_popup;
    std::unique_ptr<Parts> m_parts;
    Lifeline m_lifeline;
};
