// What a drop does with the data.
#pragma once

#include <afx/Platform.h>
#include <ole2.h>

/// DROPEFFECT_ bits.
using DROPEFFECT = DWORD;
