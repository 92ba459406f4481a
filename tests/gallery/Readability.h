/// Whether what is written in a window can be told from what is behind it.
#pragma once

#include "../resources/TextChecks.h"

#include <testkit/Picture.h>

#include <optional>

/// Two colours of a picture.
struct TextLook
{
    COLORREF ground; ///< the most frequent colour
    COLORREF text;   ///< of the other frequent ones, the farthest from it
    double ratio;    ///< of their luminance, 1 to 21
};

/// What a text in this part of a picture looks like; none where all is of one colour.
///
/// Letters are smoothed, so between the colour of the text and the ground there are others. Frequent is what
/// has at least a third of the pixels of the most frequent one beside the ground.
std::optional<TextLook> lookOf(const ovo::testkit::Picture& picture, const CRect& part);

/// Texts of enabled controls, shown inside `parent` at any depth, with a ratio below 4.5: labels, buttons,
/// edit controls, headings and rows of lists, items of trees, tabs, panes and tips. What lies below another
/// window of the program is left out.
Problems readabilityProblems(HWND parent);

/// The same of `parent` and of the popups of its thread: tips, lists of combo boxes, floating bars.
Problems readabilityProblemsWithPopups(HWND parent);
