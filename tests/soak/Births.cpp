#include "Births.h"

#include "support/GdiTypes.h"

#include <testkit/GdiHandles.h>

#include <utility>

void Births::look(const std::string& in)
{
    ++m_times;
    std::map<HGDIOBJ, Birth> known;
    known.swap(m_alive);
    for (const HGDIOBJ object : ovo::testkit::gdiHandles()) {
        auto found = known.extract(object);
        if (found)
            m_alive.insert(std::move(found));
        else
            m_alive.emplace(object, Birth{m_times, in, gdiDescription(object)});
    }
}

std::string Births::since(int old) const
{
    std::map<std::string, int> lines;
    for (const auto& [object, birth] : m_alive)
        if (birth.time > old)
            ++lines[birth.kind + " in: " + birth.in];
    std::string text;
    for (const auto& [line, times] : lines)
        text += "  " + std::to_string(times) + " " + line + "\n";
    return text;
}
