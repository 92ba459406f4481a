// Internal to CString: what lies before the characters.
#pragma once

#include <afx.h>

#include <atomic>

struct CString::Data
{
    static constexpr long kLocked = -1; ///< in `references`: the buffer is one object's own and stays so

    std::atomic<long> references; ///< of objects in any thread
    int length;
    int capacity;

    LPWSTR text() { return reinterpret_cast<LPWSTR>(this + 1); }
};

inline CString::Data* CString::data() const
{
    return reinterpret_cast<Data*>(m_pszData) - 1;
}

inline std::wstring_view CString::view() const
{
    return {m_pszData, static_cast<std::size_t>(data()->length)};
}
