// For the source with an extension DLL's entry point.
#pragma once

#include <afx/ExtensionModule.h>
