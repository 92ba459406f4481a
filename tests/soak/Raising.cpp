#include "Raising.h"

#include <afxwin.h>

#include <ovocor/OvoError.h>
#include <ovocor/WinError.h>

#include <new>
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
