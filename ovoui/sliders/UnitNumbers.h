/// Numbers with a unit for the buddies of slider buttons.
///
///     CUnitNumbers m_millimetres{L"mm"};          // "1,234.5 mm", in the user's signs
///     CUnitNumbers m_shares{CUnitNumbers::Percent};  // 0.125 as "12.5 %"
///     CSliderButton m_size{m_millimetres};
#pragma once

#include <ovoui/export.h>
#include <ovoui/sliders/SliderButtonUtils.h>

#include <string>

/// Decimal sign and digit groups are the user's, as they are when the object is made. What is typed may leave
/// out unit and groups. The tip is not shown; a host that has a place for it derives.
class OVOUI_API CUnitNumbers : public SliderButtonUtils
{
public:
    /// Chooses the constructor for shares.
    enum PercentTag
    {
        Percent ///< a hundred times the number is shown
    };

    /// Numbers with the unit `unit`; an empty one: the number alone. `groups` puts the user's sign between
    /// thousands.
    explicit CUnitNumbers(const std::wstring& unit, bool groups = true);
    /// Shares as percentages.
    explicit CUnitNumbers(PercentTag);
    CUnitNumbers(const CUnitNumbers&);
    CUnitNumbers& operator=(const CUnitNumbers&);
    virtual ~CUnitNumbers();

    void fromDisplay(std::wstring& out, const std::wstring& displayed) override;
    void toDisplay(std::wstring& out, const std::wstring& machine) override;
    void hideTip() override;
    void showTip(const std::wstring& text) override;

private:
    std::wstring m_unit;
    std::wstring m_decimal;
    std::wstring m_group;
    bool m_percent = false;
};
