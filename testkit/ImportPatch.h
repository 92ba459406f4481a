#pragma once

#include <windows.h>

namespace ovo::testkit
{

/// Replaces a function that a loaded module imports, to make a system call fail or answer what a test needs.
/// In force while the object lives. Ends the program at once when the module does not import the function, or
/// is not loaded.
class ImportPatch
{
public:
    /// From now on a call of `function` by `module`, which must be loaded, calls `replacement`, which has the
    /// same signature. The name of the module is as GetModuleHandle takes it.
    ImportPatch(const wchar_t* module, const char* function, void* replacement);
    ~ImportPatch();
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

private:
    void write(void* function);

    void** m_slot;
    void* m_original = nullptr;
};

} // namespace ovo::testkit
