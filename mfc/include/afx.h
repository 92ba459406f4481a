// The base of everything: objects, strings, exceptions, diagnostics.
#pragma once

#include <afx/Platform.h>

#include <afx/Diagnostics.h>
#include <afx/Exception.h>
#include <afx/Object.h>
#include <afx/String.h>
#include <atltypes.h>
