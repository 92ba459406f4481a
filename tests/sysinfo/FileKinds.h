// The kinds of file that a version record may tell of, in words.
#pragma once

#include <cstdint>

struct FileKind
{
    std::uint32_t type;
    std::uint32_t subtype;
    const wchar_t* words;
};

inline constexpr FileKind kFileKinds[] = {{0, 0, L"unknown"},
                                          {0, 7, L"unknown"},
                                          {1, 0, L"application"},
                                          {2, 0, L"DLL"},
                                          {3, 0, L"unknown driver"},
                                          {3, 1, L"printer driver"},
                                          {3, 2, L"keyboard driver"},
                                          {3, 3, L"language driver"},
                                          {3, 4, L"display driver"},
                                          {3, 5, L"mouse driver"},
                                          {3, 6, L"network driver"},
                                          {3, 7, L"system driver"},
                                          {3, 8, L"installable driver"},
                                          {3, 9, L"sound driver"},
                                          {3, 10, L"communications driver"},
                                          {3, 11, L"0xb device driver"},
                                          {4, 0, L"unknown font"},
                                          {4, 1, L"raster font"},
                                          {4, 2, L"vector font"},
                                          {4, 3, L"truetype font"},
                                          {4, 4, L"0x4 font"},
                                          {5, 0, L"virtual device"},
                                          {6, 0, L"0x6/0x0"},
                                          {6, 1, L"0x6/0x1"},
                                          {7, 0, L"static library"}};
