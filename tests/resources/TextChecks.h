// What must hold for the texts of every language. Each check gives what is wrong, a line each; plain values.
#pragma once

#include "ResourceTexts.h"

using Problems = std::vector<std::wstring>;

/// All of them for a message, in UTF-8.
std::string linesOf(const Problems& problems);

/// Places that only one of the two languages has, and keys of accelerators that differ.
Problems idProblems(const Texts& english, const Texts& other);

/// Formats whose specifiers differ, or stand in another order.
Problems specifierProblems(const Texts& english, const Texts& other);

/// Texts that have more or fewer lines, such as a prompt without the words for its tip.
Problems lineProblems(const Texts& english, const Texts& other);

/// The specifiers of a format: those of printf, such as %d and %.1f, and inserts, such as %1 and %2!s!.
std::vector<std::wstring> specifiersOf(const std::wstring& text);

/// Letters that two texts of a group want.
Problems mnemonicProblems(const TextGroup& group);

/// Texts that have a letter in English and none here, or the other way round.
Problems missingMnemonics(const Texts& english, const Texts& other);

/// Ordinary blanks before : ; ? ! and », or behind «, at which a line could be broken: French has no-break
/// spaces there, the other languages none.
Problems blankProblems(const Texts& texts);

/// Strings and formats that are longer than what takes them.
Problems lengthProblems(const Texts& texts);
