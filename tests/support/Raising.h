/// Exceptions of every kind, raised where a host is called.
///
///     void Host::rowColour(int) { Raising::here("rowColour"); ... }
///     const Raising raising("rowColour", kind);     // the next call raises, those after it do not
#pragma once

#include <functional>
#include <iosfwd>
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

/// What becomes of an exception.
enum class Outcome
{
    Passes,   ///< to the caller
    Shown,    ///< in a box
    Reported, ///< to the host, in the way that the control has for it
    Quiet     ///< the control goes on without an answer
};

std::ostream& operator<<(std::ostream& out, Outcome outcome);

/// Those that a call-out is documented to have.
struct Outcomes
{
    Outcome standard;  ///< an OvoError or a standard exception
    Outcome framework; ///< a CException
    Outcome other;

    Outcome of(Raising::Group group) const;
};

/// Leads to a call and says what became of the exception. `reports` tells how many the host has been told of.
Outcome outcomeOf(const std::function<void()>& provoke, const std::function<std::size_t()>& reports = {});
