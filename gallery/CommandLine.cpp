#include "CommandLine.h"

#include <windows.h>
#include <shellapi.h>

CommandLine CommandLine::parse(const std::vector<std::wstring>& words)
{
    CommandLine line;
    for (auto word = words.begin(); word != words.end(); ++word) {
        std::wstring* const value = *word == L"--page"       ? &line.page
                                    : *word == L"--shot"     ? &line.shot
                                    : *word == L"--shot-all" ? &line.shotAll
                                    : *word == L"--language" ? &line.language
                                                             : nullptr;
        if (*word == L"--list") {
            line.list = true;
        } else if (*word == L"--rtl") {
            line.rtl = true;
        } else if (!value) {
            line.mistake = L"unknown argument: " + *word;
        } else if (word + 1 == words.end()) {
            line.mistake = *word + L" needs a value";
        } else {
            *value = *++word;
        }
    }
    if (const std::size_t slash = line.page.find(L'/'); slash != std::wstring::npos) {
        line.pose = line.page.substr(slash + 1);
        line.page.resize(slash);
    }
    if (!line.shot.empty() && line.page.empty())
        line.mistake = L"--shot needs --page";
    return line;
}

std::vector<std::wstring> CommandLine::ownArguments()
{
    int count = 0;
    LPWSTR* const arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::wstring> words(arguments + 1, arguments + count);
    ::LocalFree(arguments);
    return words;
}
