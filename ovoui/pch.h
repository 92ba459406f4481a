// Precompiled for every source of the library: the MFC API and the standard library's common parts.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxext.h>
#include <afxole.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>
