#include <ovoui/sysinfo/core/ModuleView.h>

#include <ovoui/sysinfo/core/ModuleText.h>

#include <algorithm>
#include <cwchar>
#include <cwctype>

namespace ovoui::sysinfo
{
namespace
{

std::wstring folded(std::wstring_view text)
{
    std::wstring result(text);
    std::ranges::transform(result, result.begin(),
                           [](wchar_t c) { return static_cast<wchar_t>(std::towlower(c)); });
    return result;
}

bool isBelow(std::wstring_view path, std::wstring_view folder)
{
    while (folder.ends_with(L'\\'))
        folder.remove_suffix(1);
    return !folder.empty() && path.size() > folder.size() && path[folder.size()] == L'\\' &&
           folded(path.substr(0, folder.size())) == folded(folder);
}

std::vector<std::wstring> wordsOf(std::wstring_view text)
{
    std::vector<std::wstring> words(1);
    for (const wchar_t c : folded(text)) {
        if (c != L' ' && c != L'\t')
            words.back() += c;
        else if (!words.back().empty())
            words.emplace_back();
    }
    if (words.back().empty())
        words.pop_back();
    return words;
}

/// All columns, with line feeds between them so that no word is found across two.
std::wstring allColumns(const LoadedModule& module, const RemarkTexts& remarks)
{
    std::wstring text;
    for (int column = 0; column < static_cast<int>(ModuleColumn::Count); ++column)
        text += columnText(module, static_cast<ModuleColumn>(column), remarks) + L'\n';
    return folded(text);
}

bool holdsAll(const LoadedModule& module, const std::vector<std::wstring>& words, const RemarkTexts& remarks)
{
    const std::wstring text = allColumns(module, remarks);
    return std::ranges::all_of(
        words, [&](const std::wstring& word) { return text.find(word) != std::wstring::npos; });
}

/// What a module is sorted by: a number for columns of numbers, a text for the others.
struct SortKey
{
    std::array<std::uint64_t, 4> number{};
    std::wstring text;

    auto operator<=>(const SortKey&) const = default;
};

std::array<std::uint64_t, 4> versionNumbers(const std::wstring& version)
{
    std::array<std::uint64_t, 4> numbers{};
    const wchar_t* at = version.c_str();
    for (std::uint64_t& number : numbers) {
        wchar_t* end = nullptr;
        number = std::wcstoull(at, &end, 10);
        at = *end == L'.' ? end + 1 : end;
    }
    return numbers;
}

SortKey keyOf(const LoadedModule& module, ModuleColumn column, const RemarkTexts& remarks)
{
    switch (column) {
    case ModuleColumn::Address:
        return {{module.baseAddress}, {}};
    case ModuleColumn::Size:
        return {{module.size}, {}};
    case ModuleColumn::FileVersion:
        return {versionNumbers(module.fileVersion), {}};
    case ModuleColumn::ProductVersion:
        return {versionNumbers(module.productVersion), {}};
    default:
        return {{}, folded(columnText(module, column, remarks))};
    }
}

std::wstring inOneLine(std::wstring text)
{
    for (std::size_t tab; (tab = text.find(L'\t')) != std::wstring::npos;)
        text.replace(tab, 1, L" / ");
    return text;
}

} // namespace

std::wstring columnText(const LoadedModule& module, ModuleColumn column, const RemarkTexts& remarks)
{
    switch (column) {
    case ModuleColumn::Name:
        return module.name;
    case ModuleColumn::Remark:
        return remarks[static_cast<std::size_t>(remarkOn(module))];
    case ModuleColumn::FileVersion:
        return module.fileVersion;
    case ModuleColumn::ProductVersion:
        return module.productVersion;
    case ModuleColumn::Description:
        return inOneLine(module.fileDescription);
    case ModuleColumn::Path:
        return module.path;
    case ModuleColumn::LinkTime:
        return module.linkTime;
    case ModuleColumn::Address:
        return module.hasAddress ? addressText(module.baseAddress) : std::wstring();
    case ModuleColumn::Size:
        return module.hasAddress ? sizeText(module.size) : std::wstring();
    case ModuleColumn::Type:
        return module.type;
    case ModuleColumn::Flags:
        return module.flags;
    case ModuleColumn::System:
        return module.system;
    case ModuleColumn::Count:
        break;
    }
    return {};
}

Remark remarkOn(const LoadedModule& module)
{
    const bool elsewhere = module.place == ModulePlace::Elsewhere;
    if (!module.hasVersionRecord)
        return elsewhere ? Remark::NoVersionElsewhere : Remark::NoVersion;
    return elsewhere ? Remark::Elsewhere : Remark::None;
}

ModulePlace placeOf(std::wstring_view path, std::wstring_view programFolder,
                    const std::vector<std::wstring>& systemFolders)
{
    if (isBelow(path, programFolder))
        return ModulePlace::Program;
    const bool system =
        std::ranges::any_of(systemFolders, [&](const std::wstring& folder) { return isBelow(path, folder); });
    return system ? ModulePlace::System : ModulePlace::Elsewhere;
}

ModuleOrder afterClick(const ModuleOrder& order, ModuleColumn clicked)
{
    return {clicked, clicked == order.column && !order.descending};
}

SortMark markOf(const ModuleOrder& order, ModuleColumn column)
{
    if (column != order.column)
        return SortMark::None;
    return order.descending ? SortMark::Down : SortMark::Up;
}

Ink remarkInk(const Ink& window)
{
    constexpr int kHalf = 3 * 128;
    const bool light = window.red + window.green + window.blue > kHalf;
    return light ? Ink{160, 0, 0} : Ink{255, 140, 140};
}

std::vector<std::size_t> modulesToCopy(const std::vector<std::size_t>& rows,
                                       const std::function<bool(std::size_t row)>& isSelected)
{
    std::vector<std::size_t> selected;
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (isSelected(row))
            selected.push_back(rows[row]);
    return selected.empty() ? rows : selected;
}

std::optional<std::size_t> rowNamed(const std::vector<LoadedModule>& modules,
                                    const std::vector<std::size_t>& rows, std::wstring_view beginning,
                                    std::size_t start)
{
    const std::wstring wanted = folded(beginning);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::size_t row = (start + i) % rows.size();
        if (folded(modules[rows[row]].name).starts_with(wanted))
            return row;
    }
    return std::nullopt;
}

std::vector<std::size_t> visibleModules(const std::vector<LoadedModule>& modules, std::wstring_view filter,
                                        const ModuleOrder& order, const RemarkTexts& remarks)
{
    const std::vector<std::wstring> words = wordsOf(filter);
    std::vector<std::size_t> visible;
    std::vector<SortKey> keys;
    for (const LoadedModule& module : modules) {
        if (holdsAll(module, words, remarks))
            visible.push_back(keys.size());
        keys.push_back(keyOf(module, order.column, remarks));
    }
    std::ranges::stable_sort(visible, [&](std::size_t a, std::size_t b) {
        return order.descending ? keys[b] < keys[a] : keys[a] < keys[b];
    });
    return visible;
}

} // namespace ovoui::sysinfo
