/// Which modules a list shows, in what order, and what is worth a look. Plain values, no windows.
#pragma once

#include <ovoui/sysinfo/LoadedModule.h>

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovoui::sysinfo
{

/// The columns of the list, in order.
enum class ModuleColumn : int
{
    Name,
    Remark,
    FileVersion,
    ProductVersion,
    Description,
    Path,
    LinkTime,
    Address,
    Size,
    Type,
    Flags,
    System,
    Count
};

/// What is unusual about a module: no version record, a file outside the program's and the system's folders,
/// or both.
enum class Remark : int
{
    None,
    NoVersion,
    Elsewhere,
    NoVersionElsewhere,
    Count
};

Remark remarkOn(const LoadedModule& module);

/// What the list says for each remark, in the user's language; nothing for the first.
using RemarkTexts = std::array<std::wstring, static_cast<std::size_t>(Remark::Count)>;

/// What a column shows; texts of several languages stand in one line.
std::wstring columnText(const LoadedModule& module, ModuleColumn column, const RemarkTexts& remarks);

/// Where a file lies. Folders count with all that is below them; letters in any case.
ModulePlace placeOf(std::wstring_view path, std::wstring_view programFolder,
                    const std::vector<std::wstring>& systemFolders);

struct ModuleOrder
{
    ModuleColumn column = ModuleColumn::Name;
    bool descending = false;

    friend bool operator==(const ModuleOrder&, const ModuleOrder&) = default;
};

/// After a click on a column's heading: the column sorts, and turns round when it did so before.
ModuleOrder afterClick(const ModuleOrder& order, ModuleColumn clicked);

/// What the heading of a column shows.
enum class SortMark
{
    None,
    Up,  ///< ascending
    Down ///< descending
};

SortMark markOf(const ModuleOrder& order, ModuleColumn column);

/// A colour's parts, 0 to 255.
struct Ink
{
    int red;
    int green;
    int blue;
};

/// The colour of modules with a remark: a dark red on a light window, a light one on a dark window.
Ink remarkInk(const Ink& window);

/// The modules to be copied, of those that the rows show: those of the selected rows, or all when none is
/// selected. `isSelected` is asked by row.
std::vector<std::size_t> modulesToCopy(const std::vector<std::size_t>& rows,
                                       const std::function<bool(std::size_t row)>& isSelected);

/// The row whose module has a name that begins with `beginning`, letters in any case: the first one from
/// `start` on, or before it when none follows. None when no row has such a name.
std::optional<std::size_t> rowNamed(const std::vector<LoadedModule>& modules,
                                    const std::vector<std::size_t>& rows, std::wstring_view beginning,
                                    std::size_t start);

/// The indices of the modules that hold every word of `filter` in some column, letters in any case, in order:
/// addresses, sizes and versions by their numbers, the rest by letters. Equal ones stay as they stand.
std::vector<std::size_t> visibleModules(const std::vector<LoadedModule>& modules, std::wstring_view filter,
                                        const ModuleOrder& order, const RemarkTexts& remarks);

} // namespace ovoui::sysinfo
