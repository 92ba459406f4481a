// Slider buttons of every type, and a box that the round and the wheel slider turn.
#pragma once

#include "GalleryPage.h"
#include "model/DisplayedNumbers.h"
#include "model/UnitsWithTip.h"
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
    void DoDataExchange(CDataExchange* exchange) override;

    afx_msg void OnCheck();
    afx_msg void OnConvention();
    afx_msg void OnEnable();
    afx_msg void OnExtras();
    afx_msg void OnReversed();
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg LRESULT OnValueChanged(WPARAM buddy, LPARAM lParam);
    afx_msg LRESULT OnReleased(WPARAM buddy, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    static constexpr std::size_t kRows = 6;

    void createButtons();
    void createAngles();
    std::vector<CAngleSlider*> angleSliders();
    void arrange();
    void showCurve(std::size_t row);
    void turn(double heading, double tilt);
    CRoundSlider& heading() { return m_headings[m_reversed]; }
    CWheelSlider& tilt() { return m_tilts[m_reversed]; }

    void openPopup(std::size_t row);
    void openAtScreenEdge();
    bool poseAngles(const std::wstring& name);
    void explainExtras(bool on) const;

    DisplayedNumbers m_numbers;
    UnitsWithTip m_volumes{L"mm\u00B3"};
    UnitsWithTip m_shares{CUnitNumbers::Percent};
    std::array<CSliderButton, kRows> m_buttons;
    std::array<double, kRows> m_values{};
    int m_convention = 0; ///< in which they are written
    CurvePlot m_plot;
    TurnedBox m_box;
    // Which way they turn is settled when they are made.
    bool m_reversed = false;
    std::array<CRoundSlider, 2> m_headings{CRoundSlider(false), CRoundSlider(true)};
    std::array<CWheelSlider, 2> m_tilts{CWheelSlider(true), CWheelSlider(false)};
    CDialSlider m_dial; // turns with the heading
};
