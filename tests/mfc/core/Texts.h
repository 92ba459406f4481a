// How a failed expectation shows a CString.
#pragma once

#include <afx.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

inline std::ostream& operator<<(std::ostream& out, const CString& text)
{
    return out << ::testing::PrintToString(
        std::wstring(text.GetString(), static_cast<std::size_t>(text.GetLength())));
}
