#include <ovoui/lists/core/ComboRules.h>

#include <ovoui/frame/core/VirtualKeys.h>

namespace ovoui::lists
{

using namespace keys;

namespace
{

const std::vector<Told> kAccepted{Told::SelChange, Told::SelEndOk};
const std::vector<Told> kRejected{Told::SelChange, Told::SelEndCancel};

Verdict acceptIf(bool match, const ComboSettings& settings)
{
    Verdict verdict;
    if (match || settings.confirmAnyText)
        verdict.told = kAccepted;
    return verdict;
}

} // namespace

ComboKey comboKeyOf(unsigned virtualKey)
{
    switch (virtualKey) {
    case kVkReturn:
        return ComboKey::Return;
    case kVkEscape:
        return ComboKey::Escape;
    case kVkUp:
        return ComboKey::Up;
    case kVkDown:
        return ComboKey::Down;
    default:
        return ComboKey::Other;
    }
}

bool completesAfter(unsigned virtualKey)
{
    return virtualKey != kVkBack && virtualKey != kVkDelete;
}

bool stepsThroughItems(unsigned virtualKey)
{
    return virtualKey == kVkUp || virtualKey == kVkDown || virtualKey == kVkPageUp ||
           virtualKey == kVkPageDown;
}

bool forgetsText(unsigned virtualKey, bool hasHistory, bool edited, bool dropped)
{
    return virtualKey == kVkDelete && hasHistory && dropped && !edited;
}

TextPart selectionAfterCompletion(std::optional<TextPart> before, int typed)
{
    return before && before->end < typed ? *before : TextPart{typed, -1};
}

KeyEffect effectOf(ComboKey key, bool changed, bool dropped)
{
    switch (key) {
    case ComboKey::Return:
        return KeyEffect::Return;
    case ComboKey::Escape:
        return changed ? KeyEffect::Escape : KeyEffect::PassOn;
    case ComboKey::Up:
        return dropped ? KeyEffect::PassOn : KeyEffect::Up;
    case ComboKey::Down:
        return dropped ? KeyEffect::PassOn : KeyEffect::Down;
    case ComboKey::Other:
        break;
    }
    return KeyEffect::PassOn;
}

Taking takingOf(bool dropped, bool hasSelection, const ComboSettings& settings)
{
    Taking taking;
    taking.closesList = dropped;
    taking.selectsAgain = dropped && hasSelection;
    taking.looksUpText = dropped ? !hasSelection : settings.autoComplete;
    return taking;
}

Verdict afterReturn(bool match, bool wasDropped, const ComboSettings& settings)
{
    Verdict verdict = acceptIf(match, settings);
    if (settings.notifyEditReturn && !wasDropped)
        verdict.told.push_back(Told::Return);
    return verdict;
}

Verdict afterEscape()
{
    return {true, kRejected};
}

Verdict afterChoice()
{
    return {false, kAccepted};
}

Verdict afterArrow(bool match, Told arrow, const ComboSettings& settings)
{
    Verdict verdict = acceptIf(match, settings);
    if (settings.notifyEditReturn)
        verdict.told.push_back(arrow);
    return verdict;
}

Verdict afterFocusLost(bool match, bool changed, const ComboSettings& settings)
{
    if (!changed)
        return {false, {Told::SelEndCancel}};
    if (match || settings.confirmAnyText)
        return {false, kAccepted};
    return {true, kRejected};
}

} // namespace ovoui::lists
