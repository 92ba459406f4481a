/// A byte source in memory, which hands out its bytes in pieces of a chosen size.
#pragma once

#include <ovocor/core/TextStream.h>

#include <algorithm>
#include <string>
#include <utility>

class MemorySource : public OVO::ByteSource
{
public:
    explicit MemorySource(std::string bytes, std::size_t piece = 1 << 20)
        : m_bytes(std::move(bytes))
        , m_piece(piece)
    {
    }

    std::size_t read(char* bytes, std::size_t size) override
    {
        const std::size_t got = std::min({size, m_piece, m_bytes.size() - m_position});
        m_bytes.copy(bytes, got, m_position);
        m_position += got;
        m_largestRead = std::max(m_largestRead, size);
        return got;
    }

    void rewind() override { m_position = 0; }

    std::size_t largestRead() const { return m_largestRead; }

private:
    std::string m_bytes;
    std::size_t m_piece;
    std::size_t m_position = 0;
    std::size_t m_largestRead = 0;
};

/// Stands for an ANSI code page: Latin-1.
inline std::wstring fromLatin1(std::string_view bytes)
{
    std::wstring text;
    for (const char byte : bytes)
        text += static_cast<wchar_t>(static_cast<unsigned char>(byte));
    return text;
}
