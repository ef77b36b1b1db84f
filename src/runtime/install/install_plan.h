// What an installation will do, worked out before anything is done: which files go where, which are
// left out and why, and everything else that the package asks for.
#pragma once

#include "formats/install_row.h"
#include "formats/setup_information.h"
#include "platform/host.h"
#include "runtime/ini_files/ini_lines.h"
#include "runtime/registry/registry_lines.h"
#include "runtime/script/script_lines.h"
#include "runtime/setup_variables.h"
#include "runtime/texts/language_file.h"

namespace quillon {

struct PlannedFile {
    const InstallRow* row;
    Text path;
};

struct PlannedShortcut {
    Text path;
    Shortcut shortcut;
};

/// Something that the package asks for and that is not done.
struct SkippedPart {
    Text what; // in the language of the package
    Reason reason;
};

struct InstallPlan {
    InstallScope scope = InstallScope::Project;
    Text mainFolder;
    std::vector<Text> folders; // of the rows that make an empty one
    std::vector<PlannedFile> files;
    // Of rows that are not installed this time. Those of an earlier installation stay.
    std::vector<PlannedFile> filesLeftOut;
    std::vector<Text> shortcutsLeftOut;
    std::vector<PlannedShortcut> shortcuts;
    Text programGroup; // the folder of the group
    std::vector<RegistryLine> registry;
    std::vector<IniLine> ini; // absolute paths as files
    std::vector<Text> registerFiles;
    Script scriptBefore;
    Script scriptAfter;
    std::vector<SkippedPart> skipped;
    bool hasUninstaller = false;
    Text installJournal; // where the journal of this installation is kept
};

struct PlanInput {
    const SetupInformation& setup;
    const std::vector<InstallRow>& rows;
    const SetupVariables& variables;
    const LanguageTexts& texts;
    const Host& host;
    const Target& target;
};

/// Throws `SetupFailure` where a row has no place to go to.
InstallPlan MakeInstallPlan(const PlanInput& input);

/// False for a component that the user could choose and that is not ticked from the start, or that
/// only updates an earlier version and finds none.
bool IsComponentInstalled(const PlanInput& input, int component);

/// False for a component that only updates an earlier version which is not there.
bool CanBeInstalled(const PlanInput& input, int component);

/// The product's own log in the main folder, or the first free name: products that share a main
/// folder keep a log each.
Text ChooseInstallJournal(const FileSystem& files, const Text& mainFolder, const Text& product);

bool IsNewWindows(SystemKind system);

} // namespace quillon
