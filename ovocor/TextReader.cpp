#include <ovocor/TextReader.h>

#include <ovocor/Text.h>
#include <ovocor/WinError.h>
#include <ovocor/core/TextStream.h>
#include <ovomsg/ovomsg.h>

#include <algorithm>
#include <limits>

namespace OVO
{

namespace
{

class FileSource : public ByteSource
{
public:
    explicit FileSource(const std::wstring& path)
        : m_path(path)
        , m_file(::CreateFileW(path.c_str(), GENERIC_READ,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                               FILE_FLAG_SEQUENTIAL_SCAN, nullptr))
    {
        if (m_file == INVALID_HANDLE_VALUE)
            fail(OVOMSG_FILE_NOT_OPENED);
    }
    FileSource(const FileSource&) = delete;
    FileSource& operator=(const FileSource&) = delete;
    ~FileSource() override { ::CloseHandle(m_file); }

    std::size_t read(char* bytes, std::size_t size) override
    {
        const auto wanted =
            static_cast<DWORD>(std::min<std::size_t>(size, std::numeric_limits<DWORD>::max()));
        DWORD got = 0;
        if (!::ReadFile(m_file, bytes, wanted, &got, nullptr))
            fail(OVOMSG_FILE_NOT_READ);
        return got;
    }

    void rewind() override
    {
        if (!::SetFilePointerEx(m_file, LARGE_INTEGER{}, nullptr, FILE_BEGIN))
            fail(OVOMSG_FILE_NOT_READ);
    }

private:
    [[noreturn]] void fail(OvoMessageId message) const
    {
        const DWORD code = ::GetLastError();
        throw WinError(stringPrintf(ovoMsg(message).c_str(), m_path.c_str()), code);
    }

    std::wstring m_path;
    HANDLE m_file;
};

std::wstring fromAnsi(std::string_view bytes)
{
    return getWCS(bytes);
}

} // namespace

class TextReader::Impl
{
public:
    explicit Impl(const std::wstring& path)
        : m_source(path)
        , m_stream(m_source, &fromAnsi)
    {
    }

    TextStream& stream() { return m_stream; }

private:
    FileSource m_source;
    TextStream m_stream;
};

TextReader::TextReader(const std::wstring& path)
    : m_impl(std::make_unique<Impl>(path))
    , m_encoding(m_impl->stream().encoding())
{
}

TextReader::TextReader(TextReader&&) noexcept = default;

TextReader& TextReader::operator=(TextReader&&) noexcept = default;

TextReader::~TextReader() = default;

bool TextReader::readLine(std::wstring& line)
{
    if (m_impl)
        return m_impl->stream().readLine(line);
    line.clear();
    return false;
}

TextEncoding TextReader::encoding() const
{
    return m_encoding;
}

void TextReader::close()
{
    m_impl.reset();
}

} // namespace OVO
