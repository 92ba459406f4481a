/// What a loaded module imports, and a way to let the next call of one function fail.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <vector>

struct Import
{
    std::string library; ///< in small letters
    std::string function;
    void** slot;
};

/// The functions that a module imports by name.
std::vector<Import> importsOf(HMODULE module);

/// From now on the module calls `function` where it called what was in the slot before.
void writeSlot(void** slot, void* function);

/// While it lives, the first call of the function gives `value`, with ERROR_NOT_ENOUGH_MEMORY for the last
/// error; the calls after it go where they belong. Whatever the function's arguments are: x86-64 leaves them
/// to the caller. One at a time.
class FirstCallFails
{
public:
    FirstCallFails(const Import& import, std::uintptr_t value);
    ~FirstCallFails();
    FirstCallFails(const FirstCallFails&) = delete;
    FirstCallFails& operator=(const FirstCallFails&) = delete;

    /// Whether the call has come.
    bool happened() const;

private:
    void** m_slot;
    void* m_original;
};
