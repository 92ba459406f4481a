/// Angles by keyboard, wheel and snapping, in degrees. Plain values, no windows.
#pragma once

#include <optional>
#include <string_view>

namespace ovoui::sliders
{

enum class AngleKey
{
    Less,     ///< an arrow to the left or down
    More,     ///< to the right or up
    PageLess, ///< Page Down
    PageMore, ///< Page Up
    Zero,     ///< Home
};

/// By the platform's virtual key; nothing for the others.
std::optional<AngleKey> angleKeyOf(unsigned virtualKey);
/// Whether a character opens the edit control.
bool beginsAngle(unsigned character);

/// Where a key leads from `degrees`: by 1 degree, with Ctrl by 5, a page by 15.
double angleAfter(AngleKey key, bool ctrl, double degrees);

/// How a slider stands when it hears of a key, a character or the wheel.
struct AngleInput
{
    bool keyboard = false; ///< the host has asked for keys and the wheel
    bool dragging = false;
    bool ctrl = false;  ///< is held
    double degrees = 0; ///< the committed angle
};

/// Where a key leads; nothing for one that is not the slider's.
std::optional<double> angleByKey(unsigned virtualKey, const AngleInput& input);

/// Whether the wheel is the slider's, and where so many notches lead. Away from the user is more.
bool takesWheel(const AngleInput& input);
double angleByWheel(int notches, const AngleInput& input);

/// What a character means.
enum class AngleCharacter
{
    PassOn,
    Open,  ///< an edit control opens, with the character in it
    ToEdit ///< the one that has opened; it was typed before that had the focus
};
AngleCharacter angleCharacter(unsigned character, const AngleInput& input, bool editing);

/// What ends the typing of an angle.
enum class EditEnd
{
    GoesOn,
    Accept,
    Discard
};

/// A key goes down.
EditEnd editEndOf(unsigned virtualKey);
/// The angle that counts when typing ends; nothing for a text that is none, and for one that is infinite.
std::optional<double> typedAngle(EditEnd end, std::wstring_view text);

/// What a drag snaps to: the host's `snap` while Shift is held; 0 for nothing.
double snapFor(double snap, bool shift);

/// The nearest multiple of `snap`; the angle itself when `snap` is not positive.
double snapped(double degrees, double snap);

} // namespace ovoui::sliders
