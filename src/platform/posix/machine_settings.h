// What the user of a POSIX machine sets for the product through the environment: drives, registry.
#pragma once

#include "helpers/text.h"
#include "platform/posix/drive_map.h"

#include <string>
#include <vector>

namespace quillon {

// Where drive C: is one of a Windows-like system, the user has a documents folder there already.
inline constexpr const char* kOwnDocuments = "C:\\Mina dokument";

struct MachineSettings {
    std::vector<MappedDrive> drives;
    std::vector<MappedFolder> folders;      // of drive C: that are the user's own
    std::vector<std::string> registryFiles; // host paths
    std::string tempFolder = "/tmp";        // a host path
    std::string settingsFolder;             // the same; empty where the user has no folder at all
    std::string dataFolder;                 // the same, for what the tool makes for its user
    Text user;                              // the log-in name
    Text fullName;
    // Settings that could not be understood, a line for the user each.
    std::vector<Text> complaints;
};

/// "S=/srv/src;A=/mnt/floppy" as drives. Z: and C: can't be set, since paths of this machine and of
/// its Windows folders depend on them.
void AddDrives(std::string_view list, MachineSettings& settings);

MachineSettings ReadMachineSettings();

} // namespace quillon
