#include <ovoui/sysinfo/core/ModuleText.h>

#include <algorithm>
#include <string_view>

namespace ovoui::sysinfo
{
namespace
{

constexpr std::size_t kAddressDigits = 16;
constexpr wchar_t kLineEnd[] = L"\r\n";

std::wstring digits(std::uint64_t number, const wchar_t* signs)
{
    std::wstring text;
    do {
        text.push_back(signs[number % 16]);
        number /= 16;
    } while (number != 0);
    std::reverse(text.begin(), text.end());
    return text;
}

std::wstring lowerDigits(std::uint64_t number)
{
    return digits(number, L"0123456789abcdef");
}

// Markdown

/// The characters that mean something inside a cell stand behind a backslash.
std::wstring cellOf(std::wstring_view text)
{
    std::wstring cell;
    for (const wchar_t c : text) {
        if (std::wstring_view(L"\\|`*_<>[]").find(c) != std::wstring_view::npos)
            cell += L'\\';
        cell += c < L' ' ? L' ' : c;
    }
    return cell;
}

/// `line` has as many columns as the heading, or more: then the last ones share a cell.
std::wstring rowOf(std::wstring_view line, std::size_t columns)
{
    std::wstring row = L"|";
    for (std::size_t i = 1; i < columns; ++i) {
        const std::size_t tab = line.find(L'\t');
        row += L' ' + cellOf(line.substr(0, tab)) + L" |";
        line.remove_prefix(tab + 1);
    }
    return row + L' ' + cellOf(line) + L" |\n";
}

// JSON

std::wstring quoted(std::wstring_view text)
{
    std::wstring result = L"\"";
    for (const wchar_t c : text) {
        const bool surrogate = c >= 0xD800 && c <= 0xDFFF;
        if (c == L'"' || c == L'\\') {
            result += L'\\';
            result += c;
        } else if (c < L' ' || surrogate) {
            const std::wstring code = lowerDigits(c);
            result += L"\\u" + std::wstring(4 - code.size(), L'0') + code;
        } else {
            result += c;
        }
    }
    return result + L'"';
}

const wchar_t* nameOf(ModulePlace place)
{
    switch (place) {
    case ModulePlace::Program:
        return L"program";
    case ModulePlace::System:
        return L"system";
    default:
        return L"elsewhere";
    }
}

std::wstring descriptionsOf(std::wstring_view texts)
{
    std::wstring list;
    while (!texts.empty()) {
        const std::size_t tab = std::min(texts.find(L'\t'), texts.size());
        list += (list.empty() ? L"" : L", ") + quoted(texts.substr(0, tab));
        texts.remove_prefix(std::min(tab + 1, texts.size()));
    }
    return L"[" + list + L"]";
}

std::wstring objectOf(const LoadedModule& module)
{
    std::wstring object = L"  {\"name\": " + quoted(module.name) + L", \"path\": " + quoted(module.path);
    if (module.hasAddress)
        object += L", \"baseAddress\": " + quoted(L"0x" + lowerDigits(module.baseAddress)) + L", \"size\": " +
                  std::to_wstring(module.size);
    const struct
    {
        const wchar_t* key;
        const std::wstring& text;
    } texts[] = {{L"linkTime", module.linkTime},
                 {L"fileVersion", module.fileVersion},
                 {L"productVersion", module.productVersion},
                 {L"type", module.type},
                 {L"flags", module.flags},
                 {L"system", module.system}};
    for (const auto& [key, text] : texts)
        if (!text.empty())
            object += std::wstring(L", \"") + key + L"\": " + quoted(text);
    return object + L", \"descriptions\": " + descriptionsOf(module.fileDescription) +
           L", \"hasVersionRecord\": " + (module.hasVersionRecord ? L"true" : L"false") + L", \"place\": \"" +
           nameOf(module.place) + L"\"}";
}

} // namespace

const wchar_t* const kModuleColumns =
    L"Name\tbase address\tsize\tlinker stamp\tfile ver\tproduct ver\ttype\tflags\tos\tpath\tfileDesc";

std::wstring addressText(std::uint64_t address)
{
    const std::wstring text = digits(address, L"0123456789ABCDEF");
    return std::wstring(kAddressDigits - text.size(), L'0') + text;
}

std::wstring sizeText(std::uint64_t size)
{
    return L"0x" + lowerDigits(size);
}

std::wstring moduleLine(const LoadedModule& module)
{
    std::wstring line = module.name;
    if (module.hasAddress)
        line += L'\t' + addressText(module.baseAddress) + L'\t' + sizeText(module.size);
    else
        line += L"\t\t";
    for (const std::wstring* column :
         {&module.linkTime, &module.fileVersion, &module.productVersion, &module.type, &module.flags,
          &module.system, &module.path, &module.fileDescription})
        line += L'\t' + *column;
    return line;
}

std::wstring textOf(const std::vector<LoadedModule>& modules)
{
    std::wstring text = std::wstring(kModuleColumns) + kLineEnd;
    for (const LoadedModule& module : modules)
        text += moduleLine(module) + kLineEnd;
    return text;
}

std::wstring markdownOf(const std::vector<LoadedModule>& modules)
{
    const std::wstring_view heading = kModuleColumns;
    const auto columns = static_cast<std::size_t>(std::ranges::count(heading, L'\t')) + 1;
    std::wstring table = rowOf(heading, columns) + L"|";
    for (std::size_t i = 0; i < columns; ++i)
        table += L"---|";
    table += L'\n';
    for (const LoadedModule& module : modules)
        table += rowOf(moduleLine(module), columns);
    return table;
}

std::wstring jsonOf(const std::vector<LoadedModule>& modules)
{
    std::wstring array = L"[";
    const wchar_t* before = L"\n";
    for (const LoadedModule& module : modules) {
        array += before + objectOf(module);
        before = L",\n";
    }
    return array + L"\n]\n";
}

} // namespace ovoui::sysinfo
