// Whatever the bytes: a signature or none; a signature that is written again gives the same bytes.
#include "Check.h"

#include <ovoui/update/core/SignatureText.h>

#include <cstddef>
#include <cstdint>
#include <string>

using namespace ovoui::update;

namespace
{

std::string derNumber(const std::uint8_t* bytes)
{
    std::string number(bytes, bytes + 32);
    number.erase(0, std::min(number.find_first_not_of('\0'), number.size() - 1));
    if (number[0] & 0x80)
        number.insert(number.begin(), '\0');
    return std::string{2, static_cast<char>(number.size())} + number;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    keyFromPem(bytes);
    if (const auto signature = signatureFromDer(bytes)) {
        const std::string numbers = derNumber(signature->data()) + derNumber(signature->data() + 32);
        const std::string again = std::string{0x30, static_cast<char>(numbers.size())} + numbers;
        demand(again == bytes, "one form for each signature");
    }
    return 0;
}
