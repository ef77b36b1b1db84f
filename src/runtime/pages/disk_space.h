// The room that an installation takes, and what is free where it goes, as the pages show it.
#pragma once

#include "runtime/install/install_plan.h"

#include <optional>

namespace quillon {

/// How large the files of each component are, in bytes; those of none are at 0.
std::array<std::uint64_t, kComponentCount + 1>
SizesByComponent(const std::vector<InstallRow>& rows);

/// What would be installed as the project is in `input`, in bytes.
std::uint64_t NeededSpace(const PlanInput& input);
/// The same with nothing that the user could still leave out.
std::uint64_t MinSpaceNeeded(const PlanInput& input);

/// Bytes that are free where the folder is or will be; nothing where the machine can't say.
std::optional<std::uint64_t> FreeSpaceAt(const FileSystem& files, const Text& folder);

/// "12,5 MB".
Text SpaceText(std::uint64_t bytes, const Machine& machine);

} // namespace quillon
