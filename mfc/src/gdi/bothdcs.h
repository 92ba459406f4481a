// Internal to CDC: settings that drawing and questions have in common.
#pragma once

#include <afxwin.h>

namespace afxdetail
{

/// Makes a setting in the output context and, where that is another one, in the attribute context. Gives what
/// the attribute context gave, which is the one that is asked.
template <class Set>
auto inBoth(const CDC& dc, Set set)
{
    auto result = set(dc.m_hAttribDC ? dc.m_hAttribDC : dc.m_hDC);
    if (dc.m_hDC && dc.m_hAttribDC && dc.m_hDC != dc.m_hAttribDC)
        set(dc.m_hDC);
    return result;
}

} // namespace afxdetail
