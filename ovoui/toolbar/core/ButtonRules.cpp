#include <ovoui/toolbar/core/ButtonRules.h>

#include <algorithm>

namespace ovoui::toolbar
{

namespace
{

constexpr unsigned char kChecked = 0x01; // TBSTATE_
constexpr unsigned char kEnabled = 0x04;
constexpr unsigned char kHidden = 0x08;
constexpr unsigned char kIndeterminate = 0x10;
constexpr unsigned char kWrap = 0x20;
constexpr unsigned char kSeparator = 0x01; // BTNS_
constexpr unsigned char kCheck = 0x02;

/// In the framework's form, where the bit of enabled buttons stands for disabled ones.
constexpr unsigned stateBits(unsigned state)
{
    return state << 16;
}

bool hasState(const ButtonFields& button, unsigned char bit)
{
    return (button.state & bit) != 0;
}

} // namespace

bool isSeparator(const ButtonFields& button)
{
    return (button.style & kSeparator) != 0;
}

bool keepsControl(const ButtonFields& button)
{
    return isSeparator(button) && button.command != 0;
}

bool isEnabled(const ButtonFields& button)
{
    return hasState(button, kEnabled);
}

bool canBePressed(const ButtonFields& button)
{
    return isEnabled(button) && !isSeparator(button);
}

RowItem rowItemOf(const ButtonFields& button, int shownWidth)
{
    return {.width = isSeparator(button) ? button.image : shownWidth,
            .separator = isSeparator(button),
            .control = keepsControl(button),
            .hidden = hasState(button, kHidden),
            .endsRow = hasState(button, kWrap)};
}

bool isStop(const ButtonFields& button, bool shown, bool hasFlyout)
{
    return shown && !isSeparator(button) && (isEnabled(button) || hasFlyout);
}

bool isOneColumn(std::span<const ButtonFields> buttons, int rows)
{
    return rows >= std::ranges::count_if(buttons, [](const ButtonFields& button) {
               return !isSeparator(button) && !hasState(button, kHidden);
           });
}

ButtonFields withChoice(const ButtonFields& button, int command, int image)
{
    ButtonFields chosen = button;
    chosen.command = command;
    chosen.image = image;
    chosen.state = static_cast<unsigned char>((button.state & kWrap) | kEnabled);
    chosen.style = 0;
    return chosen;
}

bool tellsOfDoubleClick(const ButtonFields& button, bool commandEnabled)
{
    return button.command != 0 && commandEnabled;
}

unsigned frameworkStyle(const ButtonFields& button)
{
    return stateBits(button.state ^ kEnabled) | button.style;
}

unsigned withEnabled(unsigned style, bool enabled)
{
    constexpr unsigned kDisabled = stateBits(kEnabled);
    return enabled ? style & ~kDisabled : style | kDisabled;
}

unsigned withCheck(unsigned style, int check)
{
    constexpr int kNeither = 2;
    const unsigned off = (style & ~stateBits(kChecked | kIndeterminate)) | kCheck;
    if (check == 0)
        return off;
    return off | stateBits(check == kNeither ? kIndeterminate : kChecked);
}

ButtonRole roleOf(const ButtonFields& button, bool opensFlyout)
{
    if (isSeparator(button))
        return ButtonRole::Separator;
    if (opensFlyout)
        return ButtonRole::FlyoutButton;
    return (button.style & kCheck) ? ButtonRole::CheckButton : ButtonRole::PushButton;
}

} // namespace ovoui::toolbar
