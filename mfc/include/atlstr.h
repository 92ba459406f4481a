// CString.
#pragma once

#include <afx/String.h>
