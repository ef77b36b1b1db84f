// The disk that a folder is on: room, kind, label.
#pragma once

#include "platform/file_system.h"

#include <optional>
#include <string>

namespace quillon {

inline constexpr std::size_t kMaxVolumeNameLength = 260;

/// Bytes that this user can still write; nothing (and errno) when the folder can't be asked.
std::optional<std::uint64_t> FreeSpaceOf(const std::string& hostFolder);
/// Bytes of the whole disk; nothing when the folder can't be asked.
std::optional<std::uint64_t> SizeOfDisk(const std::string& hostFolder);
DriveKind KindOfDisk(const std::string& hostFolder);
/// Empty where the disk has none.
Text LabelOfDisk(const std::string& hostFolder);

} // namespace quillon
