/// What a button of a bar is, and what becomes of it. Plain values, no windows.
#pragma once

#include <ovoui/toolbar/core/BarRules.h>
#include <ovoui/toolbar/core/ButtonRows.h>

#include <span>

namespace ovoui::toolbar
{

bool isSeparator(const ButtonFields& button);
/// A separator that keeps the place of an embedded control, whose number is its command.
bool keepsControl(const ButtonFields& button);
bool isEnabled(const ButtonFields& button);
/// Accessibility may press it.
bool canBePressed(const ButtonFields& button);

/// The button among the rows. `shownWidth` is that of a button, in pixels; a separator has one of its own.
RowItem rowItemOf(const ButtonFields& button, int shownWidth);

/// Whether the keyboard stops at a button: at one that can be pressed or that opens a flyout. `shown`: it has
/// a place.
bool isStop(const ButtonFields& button, bool shown, bool hasFlyout);
/// Whether a bar with so many rows has one button in each, separators and hidden ones left out.
bool isOneColumn(std::span<const ButtonFields> buttons, int rows);

/// The button with an entry of its flyout: of what it was only the end of its row stays.
ButtonFields withChoice(const ButtonFields& button, int command, int image);

/// Whether the main window is told of a double click.
bool tellsOfDoubleClick(const ButtonFields& button, bool commandEnabled);

/// Style and state in the framework's form, as bits TBBS_.
unsigned frameworkStyle(const ButtonFields& button);
/// The same when the command can be used, or not.
unsigned withEnabled(unsigned style, bool enabled);
/// The same when the command is off (0), on (1) or neither (2). It is that of a check button from then on.
unsigned withCheck(unsigned style, int check);

/// What the button is for accessibility.
enum class ButtonRole
{
    Separator,
    FlyoutButton,
    CheckButton,
    PushButton
};
ButtonRole roleOf(const ButtonFields& button, bool opensFlyout);

} // namespace ovoui::toolbar
