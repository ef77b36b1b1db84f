// Makes the files of a finished package by hand, whole or with a flaw.
#pragma once

#include "formats/install_row.h"

#include <string>
#include <vector>

namespace quillon::test {

struct PackedEntry {
    Text name;
    Text comment;
    std::string content;
    Text password = {};
    bool hasWrongCrc = false;
};

/// An archive of stored entries.
std::string MakeArchive(const std::vector<PackedEntry>& entries);

struct SetupLines {
    int targetMedia = 2;
    int files = 0;
    Text more = {}; // further sections, complete lines
    Text floppies = {};
    Text keepOneAndOne = "0";
    Text inSetupFiles = "1";
    Text withFolders = "0";
};

std::string MakeSetupInformation(const SetupLines& lines);

std::string MakeInstallFileList(const std::vector<InstallRow>& rows);

} // namespace quillon::test
