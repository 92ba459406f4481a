// Internal: a flag that is set for the rest of a scope.
#pragma once

namespace afxdetail
{

class FlagScope
{
public:
    explicit FlagScope(bool& flag)
        : m_flag(flag)
    {
        m_flag = true;
    }
    ~FlagScope() { m_flag = false; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

private:
    bool& m_flag;
};

} // namespace afxdetail
