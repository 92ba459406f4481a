/// Replaces a function that a loaded module imports, to make a system call fail or answer what a test needs.
#pragma once

#include <windows.h>

/// In force while the object lives. Fails the program at once when the module does not import the function.
class ImportPatch
{
public:
    ImportPatch(const wchar_t* module, const char* function, void* replacement);
    ~ImportPatch();
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

private:
    void write(void* function);

    void** m_slot;
    void* m_original = nullptr;
};
