/// What keys and a loss of focus lead to in a completing combo box: plain values, no windows.
#pragma once

#include <optional>
#include <vector>

namespace ovoui::lists
{

/// As the host has set them.
struct ComboSettings
{
    bool autoComplete = true;
    bool confirmAnyText = false;   ///< text that is no item is accepted too
    bool notifyEditReturn = false; ///< the parent is told of Enter and the arrow keys
};

// Keys

enum class ComboKey
{
    Return,
    Escape,
    Up,
    Down,
    Other
};

enum class KeyEffect
{
    PassOn, ///< the key goes where it was going
    Return, ///< the others are taken from the edit field, and handled after the messages on their way to it
    Escape,
    Up,
    Down
};

/// By the platform's virtual key.
ComboKey comboKeyOf(unsigned virtualKey);

/// Whether what a key types is completed: not where it deletes.
bool completesAfter(unsigned virtualKey);
/// Whether a key goes to another item of the list.
bool stepsThroughItems(unsigned virtualKey);

/// Whether a key removes the selected text of the history. `edited`: the text has been edited since the list
/// was opened or stepped through.
bool forgetsText(unsigned virtualKey, bool hasHistory, bool edited, bool dropped);

/// `changed` matters for Escape only, `dropped` (the list is open) for the arrows only.
KeyEffect effectOf(ComboKey key, bool changed, bool dropped);

// Typing

/// A part of the text, by its ends; an `end` of -1 is that of the text.
struct TextPart
{
    int begin = 0;
    int end = -1;

    friend bool operator==(const TextPart&, const TextPart&) = default;
};

/// What is selected in a text that was completed behind `typed` characters: what was added, so that typing
/// replaces it, unless a part further left was selected. `before` is missing where there is no edit field.
TextPart selectionAfterCompletion(std::optional<TextPart> before, int typed);

// Judging the text

/// What is done to learn whether the text is an item.
struct Taking
{
    bool closesList = false;
    bool selectsAgain = false; ///< the list's selection becomes the text, which is an item then
    bool looksUpText = false;  ///< else, without this, the text is no item

    friend bool operator==(const Taking&, const Taking&) = default;
};

/// For Enter and for a loss of focus. `hasSelection`: the open list has one.
Taking takingOf(bool dropped, bool hasSelection, const ComboSettings& settings);

/// What the parent is told, in the order of `Verdict::told`.
enum class Told
{
    SelChange,
    SelEndOk,
    SelEndCancel,
    Return,
    Up,
    Down
};

struct Verdict
{
    bool restores = false; ///< selection and text of before come back first
    std::vector<Told> told;

    friend bool operator==(const Verdict&, const Verdict&) = default;
};

/// `wasDropped`: the list was open when the key was handled.
Verdict afterReturn(bool match, bool wasDropped, const ComboSettings& settings);
Verdict afterEscape();
/// An item was chosen.
Verdict afterChoice();
/// `arrow` is Told::Up or Told::Down.
Verdict afterArrow(bool match, Told arrow, const ComboSettings& settings);
/// `changed`: selection or text are others than those of before.
Verdict afterFocusLost(bool match, bool changed, const ComboSettings& settings);

} // namespace ovoui::lists
