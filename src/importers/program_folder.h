// What is in the output folder of a build, and what its program needs beyond the folder.
#pragma once

#include "filelist/list_work.h"
#include "helpers/version_resource.h"
#include "importers/dotnet_need.h"
#include "importers/import_data.h"

#include <functional>
#include <optional>
#include <vector>

namespace quillon {

struct FolderFile {
    Text folder; // below the output folder, without backslashes at its ends; empty at the top
    FolderEntry entry;
    // Of programs and libraries.
    std::optional<ProgramInfo> info;

    Text RelativePath() const;
};

/// A library that is neither in the folder nor a part of Windows.
struct MissingLibrary {
    Text name;
    std::vector<Text> neededBy; // relative paths, in the order of the folder
    // No file imports it at load time, only by delayed import.
    bool isDelayed = false;
};

/// A library for another machine than the program's, or than others that the program loads.
struct MixedMachine {
    Text file;
    ProgramMachine machine;
};

struct ProgramFolder {
    Text folder;
    std::vector<FolderFile> files; // those of a folder after those of its subfolders
    // The programs that may be the main one, the likeliest first; places in `files`.
    std::vector<std::size_t> programs;
    // What ended the reading before its end, in words; empty where all was read.
    Text damage;
};

/// What is found once the main program is chosen.
struct ProgramFindings {
    ProgramMachine machine = ProgramMachine::Other;
    // A managed program for any processor: Windows runs it with 64 bits where it has them. Its
    // libraries may be for one kind of processor only.
    bool isForAnyMachine = false;
    std::optional<MixedMachine> onlyFor; // the first of these libraries
    FileVersionData version;
    DotNetNeed dotNet;
    std::vector<MissingLibrary> missing; // by name
    std::vector<MixedMachine> mixed;
};

/// Walks the folder. `mayGoOn` comes before each file; false ends the walk.
ProgramFolder ReadProgramFolder(const FileSystem& files, const Text& folder,
                                const std::function<bool(const Text& file)>& mayGoOn);

ProgramFindings FindingsOf(const FileSystem& files, const ProgramFolder& folder,
                           const FolderFile& program, const ImportData& data);

/// "32 bitar"
Text MachineText(ProgramMachine machine);
/// All of it, line by line, for people.
std::vector<Text> FindingsText(const ProgramFindings& findings);

/// A file that only the build itself needs, such as debugging symbols.
bool IsBuildFile(const Text& name);

} // namespace quillon
