// Precompiled for every source of the MFC subset: the platform, the standard library and our own afx headers.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxext.h>

#include <detail/pending.h>

#include <algorithm>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>
