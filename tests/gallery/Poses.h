/// What the pages of the gallery can show beside themselves: popups, dialogs, states of their controls.
#pragma once

#include "GalleryScene.h"

#include "../resources/TextChecks.h"

#include <functional>

/// What is wrong with a window.
using Look = std::function<Problems(HWND window)>;

struct PosesSeen
{
    Problems problems; ///< with the names of page and pose in front
    std::size_t dialogs = 0;
};

/// Whether a pose is to be shown, by its name ("page/pose").
using Wanted = std::function<bool(const std::wstring& name)>;

/// Shows each pose of each page, the page opened anew, and looks at the gallery's window; where the pose
/// opens a modal dialog, at that as well, and cancels it. The dialogs of the system are left out.
PosesSeen lookAtPoses(
    GalleryScene& scene, const Look& look, const Wanted& wanted = [](const std::wstring&) { return true; });
