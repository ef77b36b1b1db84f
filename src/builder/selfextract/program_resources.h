// Resources for a finished Windows program: version, icon, manifest and raw data become a section
// of their own at its end. Nothing of Windows is needed for it, so every machine makes the same
// bytes. The layout is described in Microsoft's "PE Format" page.
#pragma once

#include "helpers/text.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

namespace ResourceType {
inline constexpr std::uint16_t kIcon = 3;
inline constexpr std::uint16_t kRawData = 10;
inline constexpr std::uint16_t kGroupIcon = 14;
inline constexpr std::uint16_t kVersion = 16;
inline constexpr std::uint16_t kManifest = 24;
} // namespace ResourceType

struct ProgramResource {
    std::uint16_t type = 0;
    std::uint16_t id = 1;
    std::string bytes;
};

/// The program with these resources, in the language that is none. Nothing where it is no program,
/// has resources already or no room in its header for another section.
std::optional<std::string> WithResources(std::string program,
                                         std::vector<ProgramResource> resources);

/// An icon file as resources: each of its pictures, and the list of them. Nothing where it is none.
std::optional<std::vector<ProgramResource>> IconResources(std::string_view file);

} // namespace quillon
