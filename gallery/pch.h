// Precompiled for every source of the gallery: the MFC API, GDI+ and the standard library's common parts.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxext.h>
#include <afxole.h>

#include <gdiplus.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>
