/// Text files, line by line.
///
///     OVO::TextReader reader(path);
///     std::wstring line;
///     while (reader.readLine(line))
///         use(line);
#pragma once

#include <ovocor/TextEncoding.h>
#include <ovocor/export.h>

#include <memory>
#include <string>

namespace OVO
{

/// Reads a text file of any size with a buffer of fixed size.
///
/// The file is UTF-8 or UTF-16 when it begins with the mark of one; without a mark it is UTF-8 when all of it
/// is valid UTF-8, else text of the ANSI code page. Finding that out goes through the file once, in pieces,
/// when it is opened. Lines end with CRLF, LF or CR. Bytes that mean nothing become U+FFFD.
class OVOCOR_API TextReader
{
public:
    /// Opens the file `path`; others may read and write it meanwhile. Throws WinError when it cannot be
    /// opened or read.
    explicit TextReader(const std::wstring& path);
    TextReader(TextReader&&) noexcept;
    TextReader& operator=(TextReader&&) noexcept;
    ~TextReader();

    /// Puts the next line, without its line end, into `line`. False, with `line` empty, at the end of the
    /// file and after `close`. Throws WinError when the file cannot be read; the next call tries again and
    /// loses nothing of the line.
    bool readLine(std::wstring& line);

    /// How the file is written; also known after `close`.
    TextEncoding encoding() const;

    /// Closes the file before this object is destroyed.
    void close();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
    TextEncoding m_encoding;
};

} // namespace OVO
