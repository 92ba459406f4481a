// The controls that every Windows has: wrappers without state of their own.
#pragma once

#include <afx/Button.h>
#include <afx/ComboBox.h>
#include <afx/Edit.h>
#include <afx/ListBox.h>
#include <afx/ScrollBar.h>
#include <afx/Static.h>
