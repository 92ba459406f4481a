/// What lives have left behind.
#pragma once

#include <testkit/GdiCounter.h>
#include <testkit/WindowCounter.h>

#include <map>
#include <string>

/// Counts the windows and the GDI objects from when it was made.
class Leftovers
{
public:
    Leftovers();

    /// Fails the test when there are more now, and names the objects where the system tells which there are.
    void expectNone() const;

private:
    const std::map<std::string, int> m_objects;
    const ovo::testkit::GdiCounter m_gdi;
    const ovo::testkit::WindowCounter m_windows;
};
