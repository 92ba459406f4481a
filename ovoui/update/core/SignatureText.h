/// Public keys and signatures (ECDSA on the curve P-256) as the usual tools write them. Plain values, no
/// windows.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ovoui::update
{

/// Two numbers of 256 bits, the most important byte first: the coordinates of a public key, or the two parts
/// of a signature.
using NumberPair = std::array<std::uint8_t, 64>;

/// Reads "-----BEGIN PUBLIC KEY-----" and what belongs to it. None when it is anything but a key on P-256 in
/// the uncompressed form.
std::optional<NumberPair> keyFromPem(std::string_view pem);

/// Reads a signature in DER: a sequence of two numbers. None when it is anything else, or has bytes behind
/// it.
std::optional<NumberPair> signatureFromDer(std::string_view bytes);

} // namespace ovoui::update
