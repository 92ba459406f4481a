/// How the characters of a text file are written.
#pragma once

namespace OVO
{

/// The encodings that TextReader knows.
enum class TextEncoding
{
    Utf8,    ///< with or without mark
    Utf16le, ///< with mark
    Utf16be, ///< with mark
    Ansi     ///< the code page of the system
};

} // namespace OVO
