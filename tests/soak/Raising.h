/// Exceptions of every kind, raised where a host is called.
///
///     void Host::rowColour(int) { Raising::here("rowColour"); ... }
///     const Raising raising("rowColour", kind);     // the next call raises, those after it do not
#pragma once

#include <functional>
#include <string>
#include <vector>

class Raising
{
public:
    /// Which of the documents' three kinds an exception is of.
    enum class Group
    {
        Standard,  ///< OvoError, and what derives from std::exception
        Framework, ///< a pointer to a CException
        Other
    };

    struct Kind
    {
        const char* name;
        Group group;
        std::function<void()> raise;
    };

    static const std::vector<Kind>& kinds();

    /// In the host: raises when this call is armed.
    static void here(const std::string& callOut);

    Raising(std::string callOut, const Kind& kind);
    ~Raising();
    Raising(const Raising&) = delete;
    Raising& operator=(const Raising&) = delete;

    bool happened() const { return m_happened; }

private:
    static Raising* s_armed;

    std::string m_callOut;
    const Kind& m_kind;
    bool m_happened = false;
};
