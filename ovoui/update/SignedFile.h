/// Not exported. A file whose bytes are checked against a signature.
#pragma once

#include <ovoui/update/core/SignatureText.h>

#include <windows.h>

#include <string>

namespace ovoui::update
{

/// While the object lives, no program can write to the file: what was checked is what is read afterwards.
class SignedFile
{
public:
    /// Throws WinError when the file cannot be opened.
    explicit SignedFile(const std::wstring& path);
    ~SignedFile();
    SignedFile(const SignedFile&) = delete;
    SignedFile& operator=(const SignedFile&) = delete;

    /// Whether the signature is one of the SHA-256 of the file's bytes with this key. Reads the file in
    /// pieces. Throws WinError when the file cannot be read or the system has no such cryptography.
    bool isSignedBy(const NumberPair& key, const NumberPair& signature) const;

private:
    HANDLE m_file;
};

/// The bytes of a small file, at most `limit` of them. Throws WinError.
std::string bytesOf(const std::wstring& path, std::size_t limit);

} // namespace ovoui::update
