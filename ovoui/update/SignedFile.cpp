#include <ovoui/update/SignedFile.h>

#include <ovocor/Text.h>
#include <ovocor/WinError.h>
#include <ovomsg/ovomsg.h>

#include <bcrypt.h>

#include <array>
#include <vector>

namespace ovoui::update
{
namespace
{

constexpr std::size_t kPiece = 64 * 1024;
using Digest = std::array<UCHAR, 32>;

void check(NTSTATUS status, const wchar_t* what)
{
    if (status < 0)
        throw WinError(what, static_cast<DWORD>(HRESULT_FROM_NT(status)));
}

class Algorithm
{
public:
    explicit Algorithm(const wchar_t* name)
    {
        check(::BCryptOpenAlgorithmProvider(&m_handle, name, nullptr, 0), L"BCryptOpenAlgorithmProvider");
    }
    ~Algorithm() { ::BCryptCloseAlgorithmProvider(m_handle, 0); }
    Algorithm(const Algorithm&) = delete;
    Algorithm& operator=(const Algorithm&) = delete;

    BCRYPT_ALG_HANDLE get() const { return m_handle; }

private:
    BCRYPT_ALG_HANDLE m_handle = nullptr;
};

class Sha256
{
public:
    Sha256()
    {
        check(::BCryptCreateHash(m_algorithm.get(), &m_handle, nullptr, 0, nullptr, 0, 0),
              L"BCryptCreateHash");
    }
    ~Sha256() { ::BCryptDestroyHash(m_handle); }
    Sha256(const Sha256&) = delete;
    Sha256& operator=(const Sha256&) = delete;

    void add(UCHAR* bytes, ULONG size)
    {
        check(::BCryptHashData(m_handle, bytes, size, 0), L"BCryptHashData");
    }
    Digest finish()
    {
        Digest digest{};
        check(::BCryptFinishHash(m_handle, digest.data(), static_cast<ULONG>(digest.size()), 0),
              L"BCryptFinishHash");
        return digest;
    }

private:
    const Algorithm m_algorithm{BCRYPT_SHA256_ALGORITHM};
    BCRYPT_HASH_HANDLE m_handle = nullptr;
};

class PublicKey
{
public:
    explicit PublicKey(const NumberPair& coordinates)
    {
        const BCRYPT_ECCKEY_BLOB header{BCRYPT_ECDSA_PUBLIC_P256_MAGIC, 32};
        std::vector<UCHAR> blob(reinterpret_cast<const UCHAR*>(&header),
                                reinterpret_cast<const UCHAR*>(&header + 1));
        blob.insert(blob.end(), coordinates.begin(), coordinates.end());
        check(::BCryptImportKeyPair(m_algorithm.get(), nullptr, BCRYPT_ECCPUBLIC_BLOB, &m_handle, blob.data(),
                                    static_cast<ULONG>(blob.size()), 0),
              L"BCryptImportKeyPair");
    }
    ~PublicKey() { ::BCryptDestroyKey(m_handle); }
    PublicKey(const PublicKey&) = delete;
    PublicKey& operator=(const PublicKey&) = delete;

    bool fits(Digest digest, NumberPair signature) const
    {
        return ::BCryptVerifySignature(m_handle, nullptr, digest.data(), static_cast<ULONG>(digest.size()),
                                       signature.data(), static_cast<ULONG>(signature.size()), 0) >= 0;
    }

private:
    const Algorithm m_algorithm{BCRYPT_ECDSA_P256_ALGORITHM};
    BCRYPT_KEY_HANDLE m_handle = nullptr;
};

WinError failure(OvoMessageId message, const std::wstring& path, DWORD code)
{
    return WinError(stringPrintf(ovoMsg(message).c_str(), path.c_str()), code);
}

HANDLE opened(const std::wstring& path)
{
    const HANDLE file =
        ::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        throw failure(OVOMSG_FILE_NOT_OPENED, path, ::GetLastError());
    return file;
}

DWORD readSome(HANDLE file, void* bytes, std::size_t size)
{
    DWORD got = 0;
    if (!::ReadFile(file, bytes, static_cast<DWORD>(size), &got, nullptr))
        throw failure(OVOMSG_UPDATE_LIST_NOT_READ, {}, ::GetLastError());
    return got;
}

} // namespace

SignedFile::SignedFile(const std::wstring& path)
    : m_file(opened(path))
{
}

SignedFile::~SignedFile()
{
    ::CloseHandle(m_file);
}

bool SignedFile::isSignedBy(const NumberPair& key, const NumberPair& signature) const
{
    Sha256 hash;
    std::vector<UCHAR> piece(kPiece);
    while (const DWORD got = readSome(m_file, piece.data(), piece.size()))
        hash.add(piece.data(), got);
    return PublicKey(key).fits(hash.finish(), signature);
}

std::string bytesOf(const std::wstring& path, std::size_t limit)
{
    const HANDLE file = opened(path);
    std::string bytes(limit, '\0');
    DWORD got = 0;
    const BOOL read = ::ReadFile(file, bytes.data(), static_cast<DWORD>(limit), &got, nullptr);
    const DWORD code = ::GetLastError();
    ::CloseHandle(file);
    if (!read)
        throw failure(OVOMSG_FILE_NOT_READ, path, code);
    bytes.resize(got);
    return bytes;
}

} // namespace ovoui::update
