#include <support/Raising.h>

#include <afxwin.h>

#include <ovocor/OvoError.h>
#include <ovocor/WinError.h>

#include <testkit/TestApp.h>

#include <new>
#include <ostream>
#include <stdexcept>

Raising* Raising::s_armed = nullptr;

const std::vector<Raising::Kind>& Raising::kinds()
{
    static const std::vector<Kind> all{
        {"runtime_error", Group::Standard, [] { throw std::runtime_error("raised"); }},
        {"bad_alloc", Group::Standard, [] { throw std::bad_alloc(); }},
        {"OvoError", Group::Standard, [] { throw OvoError(L"raised"); }},
        {"WinError", Group::Standard, [] { throw WinError(L"raised", ERROR_ACCESS_DENIED); }},
        {"CMemoryException", Group::Framework, [] { AfxThrowMemoryException(); }},
        {"CResourceException", Group::Framework, [] { AfxThrowResourceException(); }},
        {"int", Group::Other, [] { throw 42; }},
        {"text", Group::Other, [] { throw "raised"; }},
    };
    return all;
}

void Raising::here(const std::string& callOut)
{
    if (!s_armed || s_armed->m_happened || s_armed->m_callOut != callOut)
        return;
    s_armed->m_happened = true;
    s_armed->m_kind.raise();
}

Raising::Raising(std::string callOut, const Kind& kind)
    : m_callOut(std::move(callOut))
    , m_kind(kind)
{
    s_armed = this;
}

Raising::~Raising()
{
    s_armed = nullptr;
}

std::ostream& operator<<(std::ostream& out, Outcome outcome)
{
    static const char* const names[] = {"passes to the caller", "is shown", "is reported", "is quiet"};
    return out << names[static_cast<int>(outcome)];
}

Outcome Outcomes::of(Raising::Group group) const
{
    switch (group) {
    case Raising::Group::Standard:
        return standard;
    case Raising::Group::Framework:
        return framework;
    default:
        return other;
    }
}

Outcome outcomeOf(const std::function<void()>& provoke, const std::function<std::size_t()>& reports)
{
    const auto& boxes = ovo::testkit::TestApp::instance().boxes();
    const std::size_t boxesBefore = boxes.size();
    const std::size_t reportsBefore = reports ? reports() : 0;
    try {
        provoke();
    } catch (const std::exception&) {
        return Outcome::Passes;
    } catch (CException* error) {
        error->Delete();
        return Outcome::Passes;
    } catch (int) {
        return Outcome::Passes;
    } catch (const char*) {
        return Outcome::Passes;
    }
    if (reports && reports() > reportsBefore)
        return Outcome::Reported;
    return boxes.size() > boxesBefore ? Outcome::Shown : Outcome::Quiet;
}
