/// Paths of texts through a tree, written as one text. Plain values, no windows.
///
/// A slash stands before each step: "/Project/Sources/main.cpp". In a text a slash is written "\/" and a
/// backslash "\\". Where a parent has several children with the same text, "\#2" behind the text means the
/// second of them, and so on. The path without steps is the empty text, the path to one child without a text
/// is "/".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ovoui::tree
{

struct PathStep
{
    std::wstring text;
    unsigned ordinal = 1; ///< which of the children with this text, counted from 1

    friend bool operator==(const PathStep&, const PathStep&) = default;
};

std::wstring formatPath(const std::vector<PathStep>& steps);

/// Reads what formatPath writes. Lenient with what a person types: the first slash may be missing, and a
/// backslash before any other character stands for that character.
std::vector<PathStep> parsePath(std::wstring_view path);

} // namespace ovoui::tree
