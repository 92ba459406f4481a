/// What keys mean to the colour controls, by their virtual keys. Keys that move are in WheelKeys. Plain
/// values, no windows.
#pragma once

namespace ovoui::colour
{

/// In the picker's swatches.
enum class SwatchKey
{
    None,
    Move,
    Take, ///< the swatch's colour becomes the picker's
    Keep  ///< the picker's colour goes into the swatch
};
SwatchKey swatchKey(unsigned key);

/// In a grid of colours.
enum class GridKey
{
    None,
    Move,
    Choose
};
GridKey gridKey(unsigned key, bool empty);

/// In a palette that a button has dropped.
enum class PaletteKey
{
    None,
    Move,
    Choose,
    Close ///< nothing is marked that could be chosen
};
PaletteKey paletteKey(unsigned key, bool marked);

/// On a button that drops a palette.
enum class DropButtonKey
{
    Platform, ///< as any button
    Ignore,
    Open,
    Close,
    CloseAndGoOn, ///< and the focus goes to the next control
    ToPalette
};
/// `again`: the key is being held, which only the keys that move the mark take notice of. `open`: the palette
/// is.
DropButtonKey dropButtonKey(unsigned key, bool alt, bool again, bool open);

/// On a button by which a colour is picked from the screen.
enum class DropperKey
{
    Platform, ///< as any button
    Ignore,
    GiveUp,
    Press, ///< begins, or takes the colour
    MovePointer
};
/// `again`: the key is being held. `picking`: picking goes on.
DropperKey dropperKey(unsigned key, bool again, bool picking);

/// Whether a button has done all for a key when it went down, and does nothing when it comes up.
bool actsOnPressAlone(unsigned key);

// Which keys belong to the control and not to its dialog. `asksEnter`: the dialog asks about Enter.
bool gridWantsKey(bool asksEnter, bool empty);
bool dropperWantsKeys(bool asksEnter, bool picking);

/// In a picker's dialog, wherever the focus is.
enum class DialogKey
{
    None,
    CancelDrag, ///< where one goes on
    TakeNumbers ///< before the dialog closes: the focus does not leave the edit
};
DialogKey dialogKey(unsigned key);

/// How far an arrow moves the pointer, in pixels.
struct PointerStep
{
    int right = 0;
    int down = 0;

    friend bool operator==(const PointerStep&, const PointerStep&) = default;
};
PointerStep pointerStep(unsigned key, bool shift);

} // namespace ovoui::colour
