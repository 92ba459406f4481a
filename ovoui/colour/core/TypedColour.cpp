#include <ovoui/colour/core/TypedColour.h>

#include <ovoui/colour/core/ColourModes.h>

namespace ovoui::colour
{

bool countsWhenLeft(bool initialised, bool onlyTyped, bool typed)
{
    return initialised && (typed || !onlyTyped);
}

bool evenHueCounts(ColPickerModeType mode)
{
    return mode != ColPickerModeRGB;
}

bool changesColour(const Colour& before, const Colour& typed, bool alphaIsEdited, ColPickerModeType mode)
{
    const Colour compared =
        Colour::hlsa(before.h_hls(), before.l_hls(), before.s_hls(), alphaIsEdited ? before.a() : typed.a());
    return differ(compared, typed, evenHueCounts(mode));
}

Colour withAlphaOf(const Colour& colour, const Colour& other)
{
    return Colour::rgba(colour.r(), colour.g(), colour.b(), other.a());
}

Colour overGround(const Colour& colour, double ground)
{
    const double part = colour.a();
    const double rest = ground * (1 - part);
    return Colour::rgb(colour.r() * part + rest, colour.g() * part + rest, colour.b() * part + rest);
}

} // namespace ovoui::colour
