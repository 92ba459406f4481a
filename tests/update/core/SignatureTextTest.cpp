#include <ovoui/update/core/SignatureText.h>

#include <gtest/gtest.h>

#include <string>

using namespace ovoui::update;

namespace
{

// Made with openssl: a key, and its signature of "hello".
const std::string kKey = "-----BEGIN PUBLIC KEY-----\n"
                         "MFkwEwYHKoZIzj0CAQYIKoZIzj0DAQcDQgAEmlevdBj0YX2pivugIyiH9uAIyAtg\n"
                         "4TNzWLG8iH1qV6uSI9hi6qo965tLCILVLN3IMhEymVm+1hq1dBgslriylQ==\n"
                         "-----END PUBLIC KEY-----\n";
const std::string kSignature = "304402202fb002d7220edfab522a1a6db20243f5ab3fba97f2b14255f4381b4e45d7308802207"
                               "cdb557677eee9c9d04ce4fab2d2a6c8aed47a3f236468c345893569dca8b59d";

std::string bytes(const std::string& hex)
{
    std::string result;
    for (std::size_t i = 0; i < hex.size(); i += 2)
        result += static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
    return result;
}

std::string hex(const NumberPair& pair)
{
    std::string result;
    for (const std::uint8_t byte : pair) {
        result += "0123456789abcdef"[byte / 16];
        result += "0123456789abcdef"[byte % 16];
    }
    return result;
}

/// A number as DER has it.
std::string number(const std::string& value)
{
    return std::string{2, static_cast<char>(value.size())} + value;
}

std::string sequence(const std::string& content)
{
    return std::string{0x30, static_cast<char>(content.size())} + content;
}

} // namespace

TEST(SignatureText, ReadsAKeyThatAToolWrote)
{
    const auto key = keyFromPem(kKey);
    ASSERT_TRUE(key);
    EXPECT_EQ(keyFromPem("Our key:\r\n" + kKey + "\nThe end"), key) << "texts around it do not matter";
    std::string dos = kKey;
    for (std::size_t at = 0; (at = dos.find('\n', at)) != std::string::npos; at += 2)
        dos.replace(at, 1, "\r\n");
    EXPECT_EQ(keyFromPem(dos), key);
}

TEST(SignatureText, OtherKeysAreNone)
{
    std::string other = kKey;
    other[30] = other[30] == 'A' ? 'B' : 'A'; // another algorithm
    for (const std::string& text :
         {std::string(), std::string("-----BEGIN PUBLIC KEY-----"),
          std::string("-----END PUBLIC KEY----------BEGIN PUBLIC KEY-----"),
          std::string("-----BEGIN PUBLIC KEY-----\n-----END PUBLIC KEY-----"), other, kKey.substr(0, 80),
          std::string("-----BEGIN PUBLIC KEY-----\nM%==\n-----END PUBLIC KEY-----")})
        EXPECT_FALSE(keyFromPem(text)) << text;
}

TEST(SignatureText, ReadsASignatureThatAToolWrote)
{
    const auto signature = signatureFromDer(bytes(kSignature));
    ASSERT_TRUE(signature);
    const std::string both = hex(*signature);
    EXPECT_NE(kSignature.find(both.substr(0, 64)), std::string::npos);
    EXPECT_NE(kSignature.find(both.substr(64)), std::string::npos);
}

TEST(SignatureText, ShortNumbersAreFilledUpInFront)
{
    const auto signature = signatureFromDer(sequence(number("\x05") + number(std::string("\x00\x80", 2))));
    ASSERT_TRUE(signature);
    EXPECT_EQ((*signature)[31], 0x05);
    EXPECT_EQ((*signature)[63], 0x80);
    EXPECT_EQ((*signature)[62], 0x00);
}

TEST(SignatureText, AnythingElseIsNone)
{
    const std::string good = sequence(number("\x05") + number("\x06"));
    ASSERT_TRUE(signatureFromDer(good));
    const std::string long33(33, '\x01');
    for (const std::string& text :
         {std::string(), good.substr(0, 5), good + "x", number("\x05"), sequence(number("\x05")),
          sequence(number("\x05") + number("\x06") + number("\x07")),
          sequence(number("\x85") + number("\x06")),
          sequence(number(std::string("\x00\x05", 2)) + number("\x06")),
          sequence(number("") + number("\x06")), sequence(number(long33) + number("\x06")),
          std::string("\x30\x81\x06\x02\x01\x05\x02\x01\x06")})
        EXPECT_FALSE(signatureFromDer(text)) << testing::PrintToString(text);
    for (std::size_t size = 0; size < bytes(kSignature).size(); ++size)
        EXPECT_FALSE(signatureFromDer(bytes(kSignature).substr(0, size))) << size;
}
