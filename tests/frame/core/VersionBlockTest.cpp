// The version of a module, from its version record.
#include <ovoui/frame/core/VersionBlock.h>

#include <gtest/gtest.h>

#include <vector>

using namespace ovoui::frame;

namespace
{

constexpr std::size_t kFixedPart = 40;
constexpr std::size_t kWhole = 92; ///< bytes up to the end of the fixed part

using Record = std::vector<std::byte>;

void putWord(Record& record, std::size_t at, unsigned word)
{
    record[at] = static_cast<std::byte>(word & 0xFF);
    record[at + 1] = static_cast<std::byte>(word >> 8);
}

/// What lies around the signature and the version of the file is noise.
Record recordOf(const ModuleVersion& version, std::size_t size = kWhole)
{
    Record record(size, std::byte{0xA5});
    putWord(record, kFixedPart, 0x04BD);
    putWord(record, kFixedPart + 2, 0xFEEF);
    putWord(record, kFixedPart + 8, version[1]);
    putWord(record, kFixedPart + 10, version[0]);
    putWord(record, kFixedPart + 14, version[2]);
    return record;
}

} // namespace

TEST(VersionBlock, HasTheVersionOfTheFile)
{
    for (const unsigned major : {0u, 1u, 255u, 256u, 65535u})
        for (const unsigned minor : {0u, 17u, 258u, 65535u})
            for (const unsigned patch : {0u, 2u, 513u, 65535u}) {
                const ModuleVersion version{major, minor, patch};
                EXPECT_EQ(moduleVersion(recordOf(version)), version);
                EXPECT_EQ(moduleVersion(recordOf(version, 2 * kWhole)), version);
            }
}

TEST(VersionBlock, IsNoneWhenItIsCutAnywhere)
{
    const Record whole = recordOf({4, 17, 2});
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const Record cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_FALSE(moduleVersion(cut)) << size;
    }
}

TEST(VersionBlock, IsNoneWithoutTheSignature)
{
    for (std::size_t at = kFixedPart; at < kFixedPart + 4; ++at)
        for (unsigned bit = 0; bit < 8; ++bit) {
            Record record = recordOf({4, 17, 2});
            record[at] ^= static_cast<std::byte>(1u << bit);
            EXPECT_FALSE(moduleVersion(record)) << at << ' ' << bit;
        }
}

TEST(VersionBlock, IsShownByItsThreeNumbers)
{
    EXPECT_EQ(textOf(ModuleVersion{4, 17, 2}), L"4.17.2");
    EXPECT_EQ(textOf(ModuleVersion{0, 0, 65535}), L"0.0.65535");
    EXPECT_EQ(textOf(std::nullopt), L"(unknown)");
}
