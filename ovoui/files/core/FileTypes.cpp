#include <ovoui/files/core/FileTypes.h>

#include <ovoui/files/core/AsciiCase.h>

#include <algorithm>

namespace ovoui
{

namespace
{

constexpr std::wstring_view kAllFiles = L"*.*";

std::wstring withoutZeros(std::wstring text)
{
    std::erase(text, L'\0');
    return text;
}

std::wstring patternsOf(const FileType& type)
{
    std::wstring patterns;
    for (const std::wstring& pattern : type.patterns) {
        const std::wstring clean = withoutZeros(pattern);
        if (clean.empty())
            continue;
        if (!patterns.empty())
            patterns += L';';
        patterns += clean;
    }
    return patterns.empty() ? std::wstring(kAllFiles) : patterns;
}

bool sameButForCase(std::wstring_view a, std::wstring_view b)
{
    return std::ranges::equal(a, b, &isSameAsciiLetter);
}

} // namespace

std::wstring filterTextOf(const std::vector<FileType>& types)
{
    std::wstring text;
    for (const FileType& type : types) {
        const std::wstring patterns = patternsOf(type);
        const std::wstring name = withoutZeros(type.name);
        text.append(name.empty() ? patterns : name) += L'\0';
        text.append(patterns) += L'\0';
    }
    return text += L'\0';
}

int typeWith(const std::vector<FileType>& types, std::wstring_view extension)
{
    if (extension.empty())
        return 0;
    const std::wstring wanted = std::wstring(L"*").append(extension);
    const auto has = [&](const FileType& type) {
        return std::ranges::any_of(type.patterns,
                                   [&](const auto& pattern) { return sameButForCase(pattern, wanted); });
    };
    const auto found = std::ranges::find_if(types, has);
    return found == types.end() ? 0 : static_cast<int>(found - types.begin()) + 1;
}

std::wstring_view withoutPeriod(std::wstring_view extension)
{
    return extension.substr(extension.starts_with(L'.') ? 1 : 0);
}

} // namespace ovoui
