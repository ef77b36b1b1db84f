// The files that Windows 95, 98 and ME read when the machine starts: lines that a project adds to
// AUTOEXEC.BAT and CONFIG.SYS. Other systems do not read them, and they stay as they are there.
#pragma once

#include "runtime/ini_files/ini_changes.h"
#include "runtime/journal/install_transaction.h"
#include "runtime/setup_variables.h"

namespace quillon {

struct StartupWork {
    FileSystem& files;
    const Target& target;
    InstallTransaction& transaction;
    InstallJournal& journal;
    ActionLog& log;
    const LanguageTexts& texts;
    const SetupVariables& variables;
};

struct PlannedStartupLine {
    Text path;
    Text line;
};

/// The lines that would be added: those that are not there yet, and none where the system reads no
/// such files.
std::vector<PlannedStartupLine> PlanStartupLines(const FileSystem& files, const Target& target,
                                                 const SetupVariables& variables,
                                                 const section::Lists& lists);

/// Whether the system reads the files.
bool ReadsStartupFiles(const Target& target);

void WriteStartupFiles(const StartupWork& work, const section::Lists& lists);

/// Takes the line out of its file again; nothing happens where it is no longer there.
void UndoStartupLine(const FileRewriting& rewriting, const record::StartupLine& line);

} // namespace quillon
