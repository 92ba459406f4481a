/// A table as text for other programs: with tabs, and as HTML for the clipboard.
#pragma once

#include <string>
#include <vector>

namespace ovoui::lists
{

using TableRow = std::vector<std::wstring>;

/// The cells of a row with tabs between them, and a line end behind every row. Tabs and line ends within a
/// cell become spaces.
std::wstring tabSeparated(const std::vector<TableRow>& rows);

/// An HTML table. With `headings` the first row is one of headings.
std::wstring htmlTable(const std::vector<TableRow>& rows, bool headings);

/// What the clipboard's format "HTML Format" wants: UTF-8, with a description that says in bytes where the
/// parts are.
std::string htmlForClipboard(const std::string& utf8Fragment);

} // namespace ovoui::lists
