#include <ovoui/frame/core/VersionBlock.h>

#include <cstdint>

namespace ovoui::frame
{
namespace
{

/// The record begins with three words and its name; the fixed part follows at the next multiple of four.
constexpr std::size_t kFixedPart = 40;
constexpr std::size_t kFixedSize = 52;

// In the fixed part
constexpr std::size_t kSignatureAt = 0;
constexpr std::size_t kFileVersionAt = 8; ///< its upper half, and then the lower one

constexpr std::uint32_t kSignature = 0xFEEF04BD;

std::uint32_t numberAt(std::span<const std::byte> bytes, std::size_t at)
{
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;)
        number = (number << 8) | std::to_integer<std::uint32_t>(bytes[at + i]);
    return number;
}

} // namespace

std::optional<ModuleVersion> moduleVersion(std::span<const std::byte> record)
{
    if (record.size() < kFixedPart + kFixedSize)
        return std::nullopt;
    const std::span<const std::byte> fixed = record.subspan(kFixedPart, kFixedSize);
    if (numberAt(fixed, kSignatureAt) != kSignature)
        return std::nullopt;
    const std::uint32_t upper = numberAt(fixed, kFileVersionAt);
    const std::uint32_t lower = numberAt(fixed, kFileVersionAt + 4);
    return ModuleVersion{upper >> 16, upper & 0xFFFF, lower >> 16};
}

std::wstring textOf(const std::optional<ModuleVersion>& version)
{
    if (!version)
        return L"(unknown)";
    const auto [major, minor, patch] = *version;
    return std::to_wstring(major) + L'.' + std::to_wstring(minor) + L'.' + std::to_wstring(patch);
}

} // namespace ovoui::frame
