// Slider buttons of every type, and a box that the round and the wheel slider turn.
#pragma once

#include "GalleryPage.h"
#include "model/DisplayedNumbers.h"
#include "pages/CurvePlot.h"
#include "pages/TurnedBox.h"

#include <ovoui/sliders/DialSlider.h>
#include <ovoui/sliders/RoundSlider.h>
#include <ovoui/sliders/SliderButton.h>
#include <ovoui/sliders/WheelSlider.h>

#include <array>

class SlidersPage : public GalleryPage
{
public:
    SlidersPage();
    ~SlidersPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    BOOL OnInitDialog() override;

    afx_msg void OnConvention();
    afx_msg void OnEnable();
    afx_msg void OnExtras();
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg LRESULT OnValueChanged(WPARAM buddy, LPARAM lParam);
    afx_msg LRESULT OnReleased(WPARAM buddy, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    void fillNumbers();
    void showCurve(std::size_t row);
    double valueIn(std::size_t row);
    void turn(double heading, double tilt);
    bool poseAngle(const std::wstring& name);
    void openWithExtras();

    DisplayedNumbers m_numbers;
    std::array<CSliderButton, 4> m_buttons;
    CurvePlot m_plot;
    TurnedBox m_box;
    CRoundSlider m_heading{false};
    CWheelSlider m_tilt{true};
    CDialSlider m_dial; // turns with the heading
};
