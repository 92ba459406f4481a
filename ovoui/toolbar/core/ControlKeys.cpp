#include <ovoui/toolbar/core/ControlKeys.h>

#include <ovoui/frame/core/VirtualKeys.h>

#include <algorithm>
#include <iterator>

namespace ovoui::toolbar
{

using namespace keys;

namespace
{

// The editing keys of an edit control: C, V, X, Y, Z, then the codes of these letters in lower case. As
// virtual keys the latter are 3 on the numeric keypad, F7, F9, F10 and F11; hosts rely on the first.
constexpr unsigned kWithCtrl[] = {67, 86, 88, 89, 90, 99, 118, 120, 121, 122};

bool endsInput(unsigned key)
{
    return key == kVkReturn || key == kVkEscape || key == kVkTab;
}

/// F4 opens the list of a combo box.
bool isForHost(unsigned key)
{
    return key >= kVkF1 && key <= kVkF24 && key != kVkF4;
}

bool isEditingKey(unsigned key)
{
    return std::find(std::begin(kWithCtrl), std::end(kWithCtrl), key) != std::end(kWithCtrl);
}

bool deletes(unsigned key)
{
    return key == kVkInsert || key == kVkDelete || key == kVkBack;
}

bool isForControl(const ControlKey& key)
{
    const bool plain = !key.ctrl || isEditingKey(key.key);
    return (plain && !isForHost(key.key)) || deletes(key.key);
}

} // namespace

KeyDecision decideKey(const ControlKey& key)
{
    if (!key.wantsKeys)
        return {};
    const bool ends = key.down && endsInput(key.key);
    if (ends && key.toTheBar)
        return {false, KeyRoute::Loop};
    return {ends, isForControl(key) ? KeyRoute::Control : KeyRoute::Framework};
}

} // namespace ovoui::toolbar
