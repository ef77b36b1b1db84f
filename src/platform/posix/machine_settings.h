// What the user of a POSIX machine tells the product through the environment: drives, registry.
#pragma once

#include "helpers/text.h"
#include "platform/posix/drive_map.h"

#include <string>
#include <vector>

namespace quillon {

struct MachineSettings {
    std::vector<MappedDrive> drives;
    std::vector<std::string> registryFiles; // host paths
    std::string tempFolder = "/tmp";        // a host path
    std::string settingsFolder;             // the same; empty where the user has no folder at all
    Text user;                              // the log-in name
    Text fullName;
    // Settings that could not be understood, a line for the user each.
    std::vector<Text> complaints;
};

/// "S=/srv/src;A=/mnt/floppy" as drives. Z: and C: are not to be had, since paths of this machine
/// and of its Windows folders lean on them.
void AddDrives(std::string_view list, MachineSettings& settings);

MachineSettings ReadMachineSettings();

} // namespace quillon
