/// Layout of what a message box may have beside text and buttons, in pixels: a progress bar above the
/// buttons; below them a check box, a button that opens the details, and the details. Plain values, no
/// windows.
#pragma once

#include <ovoui/frame/core/MessageBoxLayout.h>

namespace ovoui::frame
{

/// What there is. A size of 0 stands for a control that the box does not have, a height of 0 for closed
/// details.
struct ExtraControls
{
    int barHeight = 0;
    Extent check;
    Extent detailsButton;
    int detailsHeight = 0;
};

/// The room that they take, as COVOMsgBoxDlg asks for it.
BoxExtras boxExtras(const ExtraControls& controls, const BoxMetrics& metrics);

/// Where they lie in the dialog's client area.
struct ExtraPlaces
{
    Box bar;
    Box check;
    Box detailsButton;
    Box details;
};

/// `client` is the client area with the room for the controls, `buttonHeight` that of the box's buttons.
ExtraPlaces extraPlaces(const ExtraControls& controls, const Extent& client, int buttonHeight,
                        const BoxMetrics& metrics);

} // namespace ovoui::frame
