/// What a node of the tree says of a command that it can do.
#pragma once

#include <cstddef>
#include <cstdint>

/// A record of 16 bytes that a node hands out in an array. The tree reads the command and the flag; the rest
/// is the host's own and is passed through as it is.
struct CommandSupported
{
    std::uint32_t id = 0;        ///< the command's number
    std::uint32_t hostData1 = 0; ///< the host's
    std::uint32_t hostData2 = 0; ///< the host's
    std::uint8_t hostByte1 = 0;  ///< the host's
    std::uint8_t offered = 0;    ///< not 0 when the node offers the command now
    std::uint8_t hostByte2 = 0;  ///< the host's
    std::uint8_t hostByte3 = 0;  ///< the host's
};

static_assert(sizeof(CommandSupported) == 16 && offsetof(CommandSupported, offered) == 13);
