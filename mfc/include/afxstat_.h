// Module state.
#pragma once

#include <afx/ModuleState.h>
