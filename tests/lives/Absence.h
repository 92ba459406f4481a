/// Libraries of the system that a program does without.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// While it lives, the modules of ovoui cannot load a library of the system at run time, or do not find a
/// function in it. A library that is loaded already, and what it needs, stays. One at a time.
class Absence
{
public:
    /// Without a `function` the whole library is absent.
    explicit Absence(const wchar_t* library, const char* function = nullptr);
    ~Absence();
    Absence(const Absence&) = delete;
    Absence& operator=(const Absence&) = delete;

    /// How often it was asked for in vain.
    int asked() const;

private:
    struct Slot
    {
        void** place;
        void* original;
    };

    std::vector<Slot> m_slots;
};
