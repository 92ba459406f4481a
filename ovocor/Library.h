/// Loading libraries from known places only.
#pragma once

#include <ovocor/export.h>

#include <windows.h>

namespace OVO
{

/// Loads a library that lies beside the program. `name` is a file name without directory. Null, with the last
/// error set, when it is not there, cannot be loaded, or the name holds a directory. Other places are not
/// searched.
OVOCOR_API HMODULE LoadProgramLibrary(const wchar_t* name);

/// The same for the library `name` in the system directory.
OVOCOR_API HMODULE LoadSystemLibrary(const wchar_t* name);

} // namespace OVO
