#include <ovoui/sysinfo/core/VersionWords.h>

#include <ovoui/sysinfo/core/WordList.h>

#include <iterator>

namespace ovoui::sysinfo
{
namespace
{

struct Word
{
    std::uint32_t value;
    const wchar_t* text;
};

constexpr Word kFlags[] = {{0x01, L"debug"},       {0x10, L"inferred"},      {0x04, L"patched"},
                           {0x02, L"pre-release"}, {0x08, L"private build"}, {0x20, L"special build"}};
constexpr Word kSystems[] = {
    {0x00010000, L"MS-DOS"}, {0x00020000, L"OS/2-16"}, {0x00030000, L"OS/2-32"}, {0x00040000, L"NT/2000"}};
constexpr Word kInterfaces[] = {{1, L"win16"}, {2, L"PM16"}, {3, L"PM32"}, {4, L"win32"}};
constexpr Word kTypes[] = {
    {0, L"unknown"}, {1, L"application"}, {2, L"DLL"}, {5, L"virtual device"}, {7, L"static library"}};
constexpr Word kDrivers[] = {
    {0, L"unknown driver"},  {1, L"printer driver"},        {2, L"keyboard driver"},
    {3, L"language driver"}, {4, L"display driver"},        {5, L"mouse driver"},
    {6, L"network driver"},  {7, L"system driver"},         {8, L"installable driver"},
    {9, L"sound driver"},    {10, L"communications driver"}};
constexpr Word kFonts[] = {
    {0, L"unknown font"}, {1, L"raster font"}, {2, L"vector font"}, {3, L"truetype font"}};

constexpr std::uint32_t kDriver = 3;
constexpr std::uint32_t kFont = 4;

std::wstring hexadecimal(std::uint32_t number)
{
    std::wstring digits;
    do {
        digits.insert(digits.begin(), L"0123456789abcdef"[number % 16]);
        number /= 16;
    } while (number != 0);
    return digits;
}

std::wstring prefixed(std::uint32_t number)
{
    return L"0x" + hexadecimal(number);
}

/// Null for a value without a word.
template <std::size_t N>
const wchar_t* wordFor(std::uint32_t value, const Word (&words)[N])
{
    for (const Word& word : words)
        if (word.value == value)
            return word.text;
    return nullptr;
}

} // namespace

std::wstring versionText(std::uint32_t high, std::uint32_t low)
{
    return std::to_wstring(high >> 16) + L'.' + std::to_wstring(high & 0xFFFF) + L'.' +
           std::to_wstring(low >> 16) + L'.' + std::to_wstring(low & 0xFFFF);
}

std::wstring flagWords(std::uint32_t flags, std::wstring_view separator)
{
    WordList list(separator);
    for (const Word& flag : kFlags) {
        if (flags & flag.value)
            list.add(flag.text);
        flags &= ~flag.value;
    }
    if (flags != 0)
        list.add(hexadecimal(flags));
    return list.take();
}

std::wstring systemWords(std::uint32_t system, std::wstring_view separator)
{
    WordList list(separator);
    const std::uint32_t high = system & 0xFFFF0000;
    const std::uint32_t low = system & 0x0000FFFF;
    if (const wchar_t* const word = wordFor(high, kSystems))
        list.add(word);
    else if (high != 0)
        list.add(L"OS:" + prefixed(high >> 16));
    if (const wchar_t* const word = wordFor(low, kInterfaces))
        list.add(word);
    else if (low != 0)
        list.add(L"API:" + prefixed(low));
    return list.take();
}

std::wstring typeWords(std::uint32_t type, std::uint32_t subtype)
{
    if (type == kDriver) {
        const wchar_t* const word = wordFor(subtype, kDrivers);
        return word ? word : prefixed(subtype) + L" device driver";
    }
    if (type == kFont) {
        const wchar_t* const word = wordFor(subtype, kFonts);
        return word ? word : prefixed(subtype) + L" font";
    }
    const wchar_t* const word = wordFor(type, kTypes);
    return word ? word : prefixed(type) + L'/' + prefixed(subtype);
}

} // namespace ovoui::sysinfo
