// Whatever text and signs: the conversions keep quoted parts, agree with a character-by-character reference,
// and undo each other where the signs are distinct and the text has none of the other convention. The first
// three bytes choose the signs.
#include "Check.h"

#include <ovoui/sliders/core/SeparatorText.h>

#include <cstddef>
#include <cstdint>
#include <string>

using namespace ovoui::sliders;

namespace
{

constexpr const wchar_t* kSeparators[] = {L",", L";", L"", L"; ", L".", L"::", L"'", L",,"};
constexpr wchar_t kDecimals[] = {L'.', L',', L';', L'\'', L'"', L'\u066B'};

/// The other way to do it: quotes first, then the signs of what is outside.
std::wstring reference(const std::wstring& text, const Convention& user)
{
    std::wstring result;
    bool single = false;
    bool twice = false;
    for (std::size_t i = 0; i < text.size();) {
        const bool outside = !single && !twice;
        if (outside && text[i] == user.decimal) {
            result += L'.';
            ++i;
        } else if (outside && !user.separator.empty() &&
                   text.compare(i, user.separator.size(), user.separator) == 0) {
            result += L',';
            i += user.separator.size();
        } else {
            if (text[i] == L'\'' && !twice)
                single = !single;
            if (text[i] == L'"' && !single)
                twice = !twice;
            result += text[i++];
        }
    }
    return result;
}

bool holdsAny(const std::wstring& text, const std::wstring& signs)
{
    return text.find_first_of(signs) != std::wstring::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const Convention user{kSeparators[data[0] % std::size(kSeparators)],
                          kDecimals[data[1] % std::size(kDecimals)]};
    const std::wstring text(data + 2, data + size);

    const std::wstring machine = toMachine(text, user);
    demand(machine == (user.isTheMachines() ? text : reference(text, user)), "as the reference has it");
    demand(machine.size() <= text.size(), "never longer");
    const std::wstring shown = fromMachine(text, user);
    demand(shown.size() <= text.size() * (user.separator.size() + 1), "a separator for each comma at most");

    const std::wstring signs = std::wstring(user.separator) + user.decimal;
    const bool distinct = !user.separator.empty() &&
                          user.separator.find(user.decimal) == std::wstring_view::npos &&
                          !holdsAny(signs, L"'\"");
    if (distinct && !holdsAny(text, signs))
        demand(toMachine(shown, user) == text, "there and back");
    return 0;
}
