#include <ovoui/update/core/SignatureText.h>

#include <algorithm>
#include <string>

namespace ovoui::update
{
namespace
{

constexpr std::string_view kBegin = "-----BEGIN PUBLIC KEY-----";
constexpr std::string_view kEnd = "-----END PUBLIC KEY-----";

/// What DER has before the coordinates of a key on P-256: the algorithm, the curve, the uncompressed form.
constexpr unsigned char kKeyHeader[] = {0x30, 0x59, 0x30, 0x13, 0x06, 0x07, 0x2A, 0x86, 0x48,
                                        0xCE, 0x3D, 0x02, 0x01, 0x06, 0x08, 0x2A, 0x86, 0x48,
                                        0xCE, 0x3D, 0x03, 0x01, 0x07, 0x03, 0x42, 0x00, 0x04};

constexpr char kSequence = 0x30;
constexpr char kInteger = 0x02;
constexpr std::size_t kNumber = 32; // bytes

std::optional<unsigned> valueOf(char c)
{
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const std::size_t value = kDigits.find(c);
    return value == std::string_view::npos ? std::nullopt : std::optional(static_cast<unsigned>(value));
}

/// Base64 with line breaks and padding; none when it holds anything else.
std::optional<std::string> decoded(std::string_view base64)
{
    std::string bytes;
    unsigned bits = 0;
    int count = 0;
    bool padded = false;
    for (const char c : base64) {
        if (c == '\r' || c == '\n' || c == ' ')
            continue;
        if (c == '=') {
            padded = true;
            continue;
        }
        const std::optional<unsigned> value = valueOf(c);
        if (!value || padded)
            return std::nullopt;
        bits = bits << 6 | *value;
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(bits >> count & 0xFF);
        }
    }
    return bytes;
}

/// Takes a value of this kind from the front of `bytes`. Lengths below 128 are all that a signature needs.
std::optional<std::string_view> take(std::string_view& bytes, char kind)
{
    if (bytes.size() < 2 || bytes[0] != kind)
        return std::nullopt;
    const auto size = static_cast<unsigned char>(bytes[1]);
    if (size >= 0x80 || size > bytes.size() - 2)
        return std::nullopt;
    const std::string_view value = bytes.substr(2, size);
    bytes.remove_prefix(2u + size);
    return value;
}

/// Puts a number right-aligned into 32 bytes; false when it is negative, too long or has needless zeros.
bool store(std::string_view number, std::uint8_t* place)
{
    if (number.empty() || (number[0] & 0x80))
        return false;
    if (number.size() > 1 && number[0] == 0) {
        number.remove_prefix(1);
        if (!(number[0] & 0x80))
            return false;
    }
    if (number.size() > kNumber)
        return false;
    std::ranges::copy(number, place + (kNumber - number.size()));
    return true;
}

} // namespace

std::optional<NumberPair> keyFromPem(std::string_view pem)
{
    const std::size_t begin = pem.find(kBegin);
    const std::size_t end = pem.find(kEnd);
    if (begin == std::string_view::npos || end == std::string_view::npos || end < begin + kBegin.size())
        return std::nullopt;
    const std::optional<std::string> bytes =
        decoded(pem.substr(begin + kBegin.size(), end - begin - kBegin.size()));
    NumberPair key{};
    const auto same = [](unsigned char a, char b) { return a == static_cast<unsigned char>(b); };
    if (!bytes || bytes->size() != std::size(kKeyHeader) + key.size() ||
        !std::equal(std::begin(kKeyHeader), std::end(kKeyHeader), bytes->begin(), same))
        return std::nullopt;
    std::copy(bytes->begin() + std::size(kKeyHeader), bytes->end(), key.begin());
    return key;
}

std::optional<NumberPair> signatureFromDer(std::string_view bytes)
{
    std::optional<std::string_view> parts = take(bytes, kSequence);
    if (!parts || !bytes.empty())
        return std::nullopt;
    NumberPair signature{};
    for (std::uint8_t* const place : {signature.data(), signature.data() + kNumber}) {
        const std::optional<std::string_view> number = take(*parts, kInteger);
        if (!number || !store(*number, place))
            return std::nullopt;
    }
    return parts->empty() ? std::optional(signature) : std::nullopt;
}

} // namespace ovoui::update
