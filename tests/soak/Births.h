#pragma once

#include <windows.h>

#include <map>
#include <string>

/// When each living GDI object was made: finds out what keeps those that a long run has left. Looking at all
/// of them after each input makes a run slower by a tenth.
class Births
{
public:
    /// Those that are alive now and were not the last time came `in` these inputs.
    void look(const std::string& in);
    /// Those that came after the first `old` times of looking and are still there, by their kind and what
    /// made them, one a line.
    std::string since(int old) const;

private:
    struct Birth
    {
        int time;
        std::string in;
        std::string kind;
    };

    int m_times = 0;
    std::map<HGDIOBJ, Birth> m_alive;
};
