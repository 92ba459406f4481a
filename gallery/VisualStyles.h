// Visual styles for the windows of this program.
#pragma once

/// Switches them on or off, for windows that are there and for those to come. Without UxTheme nothing
/// happens.
void setVisualStyles(bool on);
