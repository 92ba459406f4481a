/// Not exported. Bytes to lines: finds out how a text is encoded and decodes it line by line.
#pragma once

#include <ovocor/TextEncoding.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace OVO
{

/// Where a TextStream gets its bytes.
class ByteSource
{
public:
    virtual ~ByteSource() = default;

    /// Reads up to `size` bytes; 0 means that there are no more.
    virtual std::size_t read(char* bytes, std::size_t size) = 0;

    /// Goes back to the first byte.
    virtual void rewind() = 0;
};

/// The lines of a byte source. Memory: a buffer and the longest line.
class TextStream
{
public:
    /// Decodes a line of the ANSI code page.
    using AnsiDecoder = std::wstring (*)(std::string_view bytes);

    /// Finds out the encoding, for which it may go through the whole source. The source is borrowed; its
    /// exceptions pass through, here and in readLine.
    TextStream(ByteSource& source, AnsiDecoder ansi, std::size_t bufferSize = 64 * 1024);

    TextEncoding encoding() const { return m_encoding; }

    /// The next line without its line end (CRLF, LF or CR); false, with `line` empty, at the end. After an
    /// exception it goes on with the same line.
    bool readLine(std::wstring& line);

private:
    void detectEncoding();
    void skipMark(std::size_t size);
    bool fill();
    bool takeLine();
    bool takeUpToLineEnd();
    std::string_view unread() const;
    void decode(std::wstring& line) const;

    ByteSource& m_source;
    AnsiDecoder m_ansi;
    TextEncoding m_encoding = TextEncoding::Utf8;
    std::vector<char> m_buffer;
    std::size_t m_size = 0;     // bytes in the buffer
    std::size_t m_position = 0; // of them used
    std::string m_raw;          // the current line, as it stands in the source
    bool m_rawIsWhole = false;  // it is to be decoded
    bool m_afterReturn = false; // a line feed now belongs to the line end before it
};

} // namespace OVO
