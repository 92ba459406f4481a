// Signed lists: what is accepted, and what is refused with which message. The library's download is led to a
// server without https.
#include "ovocor/LoopbackServer.h"
#include <testkit/ImportPatch.h>

#include <ovoui/update/UpdateTrust.h>

#include <ovocor/OvoError.h>
#include <ovocor/Text.h>
#include <ovocor/Url.h>
#include <ovomsg/ovomsg.h>

#include <gtest/gtest.h>

#include <windows.h>
#include <bcrypt.h>
#include <wininet.h>

#include <stdexcept>

using ovo::testkit::ImportPatch;

namespace
{

constexpr int kInstalled[4] = {11, 0, 0, 0};
constexpr char kRow[] = "#update,Board,,,,,12,http://example.org/12,News\n";

std::wstring g_server;
std::vector<std::wstring> g_fetched;
std::vector<std::wstring> g_cached; // the library deletes them under the addresses that it knows

/// In place of the library's: https addresses are those of the test's server.
std::wstring fetch(const std::wstring& address, DownloadControl& control)
{
    g_fetched.push_back(address);
    const std::wstring plain = g_server + address.substr(std::wstring(L"https://maker.example").size());
    g_cached.push_back(plain);
    return downloadUrlToCache(plain, control);
}

std::string base64(const std::vector<UCHAR>& bytes)
{
    static const char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::size_t left = bytes.size() - i;
        const unsigned bits =
            bytes[i] << 16u | (left > 1 ? bytes[i + 1] << 8u : 0u) | (left > 2 ? bytes[i + 2] : 0u);
        text += kDigits[bits >> 18 & 63];
        text += kDigits[bits >> 12 & 63];
        text += left > 1 ? kDigits[bits >> 6 & 63] : '=';
        text += left > 2 ? kDigits[bits & 63] : '=';
    }
    return text;
}

/// A key pair of the test's, as the maker of a program has one.
class Maker
{
public:
    Maker()
    {
        ::BCryptOpenAlgorithmProvider(&m_algorithm, BCRYPT_ECDSA_P256_ALGORITHM, nullptr, 0);
        ::BCryptGenerateKeyPair(m_algorithm, &m_key, 256, 0);
        ::BCryptFinalizeKeyPair(m_key, 0);
    }
    ~Maker()
    {
        ::BCryptDestroyKey(m_key);
        ::BCryptCloseAlgorithmProvider(m_algorithm, 0);
    }
    Maker(const Maker&) = delete;
    Maker& operator=(const Maker&) = delete;

    std::string publicKey() const
    {
        UCHAR blob[sizeof(BCRYPT_ECCKEY_BLOB) + 64]{};
        ULONG size = 0;
        EXPECT_GE(::BCryptExportKey(m_key, nullptr, BCRYPT_ECCPUBLIC_BLOB, blob, sizeof blob, &size, 0), 0);
        std::vector<UCHAR> der{0x30, 0x59, 0x30, 0x13, 0x06, 0x07, 0x2A, 0x86, 0x48,
                               0xCE, 0x3D, 0x02, 0x01, 0x06, 0x08, 0x2A, 0x86, 0x48,
                               0xCE, 0x3D, 0x03, 0x01, 0x07, 0x03, 0x42, 0x00, 0x04};
        der.insert(der.end(), blob + sizeof(BCRYPT_ECCKEY_BLOB), blob + sizeof blob);
        return "-----BEGIN PUBLIC KEY-----\n" + base64(der) + "\n-----END PUBLIC KEY-----\n";
    }

    std::string sign(const std::string& text) const
    {
        BCRYPT_ALG_HANDLE sha = nullptr;
        ::BCryptOpenAlgorithmProvider(&sha, BCRYPT_SHA256_ALGORITHM, nullptr, 0);
        BCRYPT_HASH_HANDLE hash = nullptr;
        ::BCryptCreateHash(sha, &hash, nullptr, 0, nullptr, 0, 0);
        ::BCryptHashData(hash, reinterpret_cast<UCHAR*>(const_cast<char*>(text.data())),
                         static_cast<ULONG>(text.size()), 0);
        UCHAR digest[32]{};
        ::BCryptFinishHash(hash, digest, sizeof digest, 0);
        ::BCryptDestroyHash(hash);
        ::BCryptCloseAlgorithmProvider(sha, 0);
        UCHAR both[64]{};
        ULONG size = 0;
        EXPECT_GE(::BCryptSignHash(m_key, nullptr, digest, sizeof digest, both, sizeof both, &size, 0), 0);
        const std::string numbers = number(both) + number(both + 32);
        return std::string{0x30, static_cast<char>(numbers.size())} + numbers;
    }

private:
    static std::string number(const UCHAR* bytes)
    {
        std::string value(bytes, bytes + 32);
        value.erase(0, std::min<std::size_t>(value.find_first_not_of('\0'), 31));
        if (value[0] & 0x80)
            value.insert(value.begin(), '\0');
        return std::string{2, static_cast<char>(value.size())} + value;
    }

    BCRYPT_ALG_HANDLE m_algorithm = nullptr;
    BCRYPT_KEY_HANDLE m_key = nullptr;
};

class UpdateTrusting : public ::testing::Test
{
protected:
    UpdateTrusting()
    {
        g_server = server.address(L"");
        g_fetched.clear();
        g_cached.clear();
        trust.publicKey = maker.publicKey();
    }

    ~UpdateTrusting() override
    {
        for (const std::wstring& address : g_cached)
            ::DeleteUrlCacheEntryW(address.c_str());
    }

    void publish(const std::string& list) { publish(list, maker.sign(list)); }
    void publish(const std::string& list, const std::string& signature)
    {
        server.answer("/updates.csv", LoopbackServer::page("200 OK", list));
        server.answer("/updates.csv.sig", LoopbackServer::page("200 OK", signature));
    }
    static std::string issued(const std::string& number) { return "#issue,-,,,,," + number + ",-\n" + kRow; }

    std::wstring refusal(const std::wstring& address = L"https://maker.example/updates.csv")
    {
        try {
            update = findTrustedUpdate(address, L"Board", L"", kInstalled, trust);
        } catch (const OvoError& error) {
            return error.wwhat();
        }
        return {};
    }
    static std::wstring message(unsigned id, const wchar_t* address = L"https://maker.example/updates.csv")
    {
        return stringPrintf(ovoMsg(id).c_str(), address);
    }

    Maker maker;
    UpdateTrust trust;
    std::optional<AvailableUpdate> update;
    LoopbackServer server;
    ImportPatch patch{
        L"ovoui.dll",
        "_Z18downloadUrlToCacheRKNSt7__cxx1112basic_stringIwSt11char_traitsIwESaIwEEER15DownloadControl",
        reinterpret_cast<void*>(&fetch)};
};

} // namespace

TEST_F(UpdateTrusting, ASignedListIsUsed)
{
    publish(issued("7"));
    EXPECT_EQ(refusal(), L"");
    ASSERT_TRUE(update);
    EXPECT_EQ(update->version, L"12");
    EXPECT_EQ(trust.issue, L"7");
    EXPECT_EQ(g_fetched, (std::vector<std::wstring>{L"https://maker.example/updates.csv",
                                                    L"https://maker.example/updates.csv.sig"}));
}

TEST_F(UpdateTrusting, WithoutASignatureItIsRefused)
{
    server.answer("/updates.csv", LoopbackServer::page("200 OK", kRow));
    EXPECT_EQ(refusal(), message(OVOMSG_UPDATE_LIST_UNSIGNED));
    for (const std::string& signature :
         {std::string(), std::string("<html>Not here</html>"), std::string(5000, 'x')}) {
        publish(kRow, signature);
        EXPECT_EQ(refusal(), message(OVOMSG_UPDATE_LIST_UNSIGNED));
    }
    EXPECT_EQ(trust.issue, L"");
}

TEST_F(UpdateTrusting, AlteredByOneByteItIsRefused)
{
    const std::string list = issued("7");
    for (std::size_t at = 0; at < list.size(); at += 13) {
        std::string altered = list;
        altered[at] ^= 1;
        publish(altered, maker.sign(list));
        EXPECT_EQ(refusal(), message(OVOMSG_UPDATE_LIST_ALTERED)) << at;
    }
    publish(list + "\n", maker.sign(list));
    EXPECT_EQ(refusal(), message(OVOMSG_UPDATE_LIST_ALTERED));
}

TEST_F(UpdateTrusting, SignedWithAnotherKeyItIsRefused)
{
    const Maker other;
    publish(kRow, other.sign(kRow));
    EXPECT_EQ(refusal(), message(OVOMSG_UPDATE_LIST_ALTERED));
}

TEST_F(UpdateTrusting, OlderThanOneSeenItIsRefused)
{
    const struct
    {
        const wchar_t* seen;
        std::string list;
        bool older;
    } rows[] = {{L"", kRow, false},         {L"", issued("1"), false},         {L"7", issued("7"), false},
                {L"7", issued("6"), true},  {L"7", issued("8"), false},        {L"7", kRow, true},
                {L"10", issued("9"), true}, {L"2024.2", issued("2024"), true}, {L"7", issued("new"), true}};
    for (const auto& [seen, list, older] : rows) {
        trust.issue = seen;
        publish(list);
        EXPECT_EQ(refusal(), older ? message(OVOMSG_UPDATE_LIST_OLD) : L"")
            << testing::PrintToString(std::wstring(seen)) << list;
        if (older) {
            EXPECT_EQ(trust.issue, seen) << "a list that is refused changes nothing";
        }
    }
}

TEST_F(UpdateTrusting, OnlyHttpsWillDo)
{
    for (const wchar_t* address : {L"http://maker.example/updates.csv", L"ftp://maker.example/updates.csv"})
        EXPECT_EQ(refusal(address), message(OVOMSG_UPDATE_LIST_NOT_SECURE, address));
    EXPECT_TRUE(g_fetched.empty()) << "nothing is fetched";
}

TEST_F(UpdateTrusting, AKeyThatIsNoneIsAMistakeOfTheHost)
{
    trust.publicKey = "abc";
    EXPECT_THROW(findTrustedUpdate(L"https://maker.example/updates.csv", L"Board", L"", kInstalled, trust),
                 std::invalid_argument);
}
