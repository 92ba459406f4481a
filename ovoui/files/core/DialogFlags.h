/// Which flags the system's file dialog gets for what is asked. Plain values, no windows.
#pragma once

namespace ovoui
{

struct FileWish
{
    bool mustExist = false; ///< only files that exist
    bool several = false;   ///< one file or more
    bool saves = false;     ///< in the dialog for saving, which asks before a file is replaced
};

/// OFN_ flags. The dialog never changes the working folder.
unsigned dialogFlags(const FileWish& wish);

} // namespace ovoui
