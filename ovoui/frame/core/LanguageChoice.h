/// Languages and regions, by the platform's numbers for them. Plain values, no windows.
#pragma once

#include <cstdint>
#include <vector>

namespace ovoui::frame
{

/// As LANGID: the language in the lower ten bits, the region above; region 0 is none.
using LanguageId = std::uint16_t;

/// The languages among what texts are marked with, each without a region; English is the first.
std::vector<LanguageId> languagesAmong(const std::vector<LanguageId>& marks);

/// The mark of the same language that has a region; 0 when there is none.
LanguageId withRegionOfMarks(const std::vector<LanguageId>& marks, LanguageId language);

} // namespace ovoui::frame
