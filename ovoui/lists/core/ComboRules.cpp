#include <ovoui/lists/core/ComboRules.h>

namespace ovoui::lists
{

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
