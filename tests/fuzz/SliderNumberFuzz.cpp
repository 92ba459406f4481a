// Whatever a buddy's text: a position of the slider, a text that is a number again, and steps that stay in
// the range.
#include "Bytes.h"
#include "Check.h"

#include <ovoui/sliders/core/NumberText.h>
#include <ovoui/sliders/core/SliderNumbers.h>
#include <ovoui/sliders/core/UnitText.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

using namespace ovoui::sliders;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Bytes bytes(data, size);
    SliderNumbers numbers;
    numbers.whole = bytes.between(0, 1) == 0;
    numbers.mapping = static_cast<Mapping>(bytes.between(0, 2));
    numbers.low = bytes.value<std::int16_t>();
    numbers.high = bytes.value<std::int16_t>();
    numbers.range = {bytes.value<std::int16_t>() / 8.0, bytes.value<std::int16_t>() / 8.0};
    numbers.decimals = bytes.between(0, 6);
    std::wstring text;
    while (bytes.left())
        text += static_cast<wchar_t>(bytes.next());

    if (const auto value = parseReal(text))
        demand(parseReal(formatReal(*value, 3)).has_value(), "a number that is written is one");
    if (const auto value = parseWhole(text))
        demand(parseWhole(std::to_wstring(*value)) == value, "a whole number is read as it was written");

    const Positions positions = numbers.positions();
    if (!numbers.whole) {
        const int position = numbers.positionOf(text);
        demand(position >= positions.minimum && position <= positions.maximum,
               "one of the slider's positions");
    }
    const std::wstring stepped = numbers.stepped(text, 1);
    demand(numbers.whole ? parseWhole(stepped).has_value() : parseReal(stepped).has_value(),
           "a step is a number");

    const UnitStyle style{L"mm", L",", L".", false};
    const std::wstring shown = withUnit(stepped, style);
    demand(withoutUnit(shown, style) == stepped, "a unit comes off as it went on");
    return 0;
}
