// What the gallery's command line asks for.
#pragma once

#include <string>
#include <vector>

/// gallery [--rtl] [--language TAG] [--list] [--page NAME[/POSE] [--shot FILE.png]] [--shot-all FOLDER]
struct CommandLine
{
    bool list = false;     ///< name the pages
    bool rtl = false;      ///< lay the windows out from right to left
    std::wstring language; ///< of the library's texts, such as "de"; empty: the user's
    std::wstring page;     ///< the page to open, or to take pictures of; empty: the first, or all
    std::wstring pose;     ///< what the page is to show for the picture; empty: the page as it opens
    std::wstring shot;     ///< the file for one picture
    std::wstring shotAll;  ///< the folder for the pictures of all pages and poses, or of those of `page`
    std::wstring mistake;  ///< what is wrong with the command line; empty when nothing is

    bool wantsPictures() const { return !shot.empty() || !shotAll.empty(); }

    /// Takes the arguments behind the program's name.
    static CommandLine parse(const std::vector<std::wstring>& words);

    /// The arguments of this process.
    static std::vector<std::wstring> ownArguments();
};
