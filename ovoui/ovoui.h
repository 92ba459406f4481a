/// Umbrella header: everything that the library offers to a host.
#pragma once

#include <ovoui/frame/Geometry.h>
#include <ovoui/frame/MessageBox.h>
#include <ovoui/frame/ModalDialog.h>
#include <ovoui/frame/NonClientMetrics.h>
#include <ovoui/frame/TabKeys.h>
#include <ovoui/frame/ThemeData.h>
#include <ovoui/images/AlphaImageButton.h>
#include <ovoui/images/AlphaImageList.h>
#include <ovoui/lists/ColourEntry.h>
#include <ovoui/lists/ComboBox.h>
#include <ovoui/lists/ComboBoxDeletion.h>
#include <ovoui/lists/ComboFunctions.h>
#include <ovoui/lists/ListCopier.h>
#include <ovoui/lists/ListCtrlEx.h>
#include <ovoui/lists/ListLayout.h>
#include <ovoui/lists/ListSorter.h>
#include <ovoui/toolbar/FlyoutToolbar.h>
#include <ovoui/toolbar/VantorToolBar.h>
#include <ovoui/sliders/RoundSlider.h>
#include <ovoui/sliders/Separators.h>
#include <ovoui/sliders/SliderButton.h>
#include <ovoui/sliders/WheelSlider.h>
#include <ovoui/tree/DropMenu.h>
#include <ovoui/tree/MultiTreeCtrl.h>
#include <ovoui/tree/PlainText.h>
