// Says line by line what is wrong with an update list.
#include <ovoui/update/core/ListLint.h>

#include <ovocor/OvoError.h>
#include <ovocor/TextReader.h>

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

using namespace ovoui::update;

namespace
{

constexpr int kGood = 0;
constexpr int kBad = 1; ///< there are errors
constexpr int kNotDone = 2;

/// UTF-8, whatever the console's code page.
void say(FILE* stream, const std::wstring& text)
{
    const int length = static_cast<int>(text.size());
    std::string bytes(text.size() * 3, '\0');
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                           static_cast<int>(bytes.size()), nullptr, nullptr);
    std::fwrite(bytes.data(), 1, static_cast<std::size_t>(size), stream);
}

bool isPlain(const std::wstring& line)
{
    return std::ranges::all_of(line, [](wchar_t c) { return c < 0x80; });
}

std::vector<Finding> findingsIn(const std::wstring& path)
{
    OVO::TextReader reader(path);
    ListLint lint;
    std::wstring line;
    std::size_t lines = 0;
    std::size_t letters = 0; // the first line with letters that not every code page has
    while (reader.readLine(line)) {
        ++lines;
        if (letters == 0 && !isPlain(line))
            letters = lines;
        lint.feedLine(line);
    }
    std::vector<Finding> findings = lint.finish();
    if (reader.encoding() == OVO::TextEncoding::Ansi) {
        findings.push_back(
            {std::max<std::size_t>(letters, 1), Finding::Weight::Warning,
             L"The list is neither UTF-8 nor UTF-16: other machines read other letters here."});
        std::ranges::stable_sort(findings, {}, &Finding::line);
    }
    return findings;
}

int report(const std::wstring& path, const std::vector<Finding>& findings)
{
    const auto isError = [](const Finding& finding) { return finding.weight == Finding::Weight::Error; };
    for (const Finding& finding : findings)
        say(stdout, path + L":" + std::to_wstring(finding.line) +
                        (isError(finding) ? L": error: " : L": warning: ") + finding.text + L"\n");
    const auto errors = std::ranges::count_if(findings, isError);
    say(stdout, path + L": " + std::to_wstring(errors) + L" errors, " +
                    std::to_wstring(static_cast<std::ptrdiff_t>(findings.size()) - errors) + L" warnings\n");
    return errors > 0 ? kBad : kGood;
}

} // namespace

int wmain(int count, wchar_t** arguments)
{
    ::SetConsoleOutputCP(CP_UTF8);
    if (count != 2) {
        say(stderr, L"usage: ovo-update-lint LIST\n");
        return kNotDone;
    }
    try {
        return report(arguments[1], findingsIn(arguments[1]));
    } catch (const OvoError& error) {
        say(stderr, std::wstring(L"ovo-update-lint: ") + error.wwhat() + L"\n");
        return kNotDone;
    }
}
