/// The version in a module's version record. Plain values, no windows.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace ovoui::frame
{

/// Major and minor number and patch.
using ModuleVersion = std::array<unsigned, 3>;

/// The first three numbers of the file's version. `record` is the whole resource. None when it is too short
/// or does not hold what a version record holds.
std::optional<ModuleVersion> moduleVersion(std::span<const std::byte> record);

/// "4.17.2", or what stands for a version that is not known.
std::wstring textOf(const std::optional<ModuleVersion>& version);

} // namespace ovoui::frame
