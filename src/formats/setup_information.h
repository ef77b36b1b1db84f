// QNSETUP.INF read back: what the setup runtime knows of the project. The tables that the writer
// walks are beside this reader, so that both agree.
#pragma once

#include "formats/package_files.h"
#include "helpers/number_text.h"
#include "helpers/text.h"
#include "helpers/twips.h"
#include "project/records.h"

#include <string_view>

namespace quillon {

/// The file holds positions in pixels; here they are twips, as in the project.
struct SetupInformation {
    // Every field that the file carries, under the names of the project; the file list is empty,
    // and a path that the file holds without its folder has none.
    Project project;

    Text toolVersion;
    bool isPreview = false;
    Text XProductVersion; // the version text itself, not the file it came from
    int Floppies = 0;     // 0 where the file has no such key or only its placeholder
    Flag PlaceCompressedFilesInFolderSetupFiles = kOff;
    Flag CreateFolderStructureInFolderSetupFiles = kOff;
    int DesWidth = 0; // pixels
    int DesHeight = 0;
    Flag UseComponents = kOff;
    Long Files = 0;
    Long TotalSize = 0; // kilobytes
    // False where the type mark or the file's end is missing, or a list does not end.
    bool isWhole = false;
};

/// Reads QNSETUP.INF from the bytes on file. The password comes back in plain.
SetupInformation ReadSetupInformation(std::string_view bytes);

inline Medium MediumOf(const SetupInformation& setup)
{
    return static_cast<Medium>(setup.project.Media.TargetMedia);
}

} // namespace quillon
