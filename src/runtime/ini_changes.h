// Writes the INI list to the machine's INI files, and takes single changes back at uninstallation.
#pragma once

#include "runtime/ini_lines.h"
#include "runtime/install_transaction.h"

namespace quillon {

struct IniWork {
    FileSystem& files;
    InstallTransaction& transaction;
    InstallJournal& record;
    ActionLog& log;
};

/// The lines' files are absolute paths.
void WriteIniFiles(const IniWork& work, const std::vector<IniLine>& lines);

void UndoIniChange(FileSystem& files, const record::IniFile& record);
void UndoIniChange(FileSystem& files, const record::IniOpenEnd& record);
void UndoIniChange(FileSystem& files, const record::IniSection& record);
void UndoIniChange(FileSystem& files, const record::IniValue& record);

/// The old file stays until the new one is whole. A removal that was broken off here is repeated,
/// and then finds its temporary file under the same name.
void RewriteFile(FileSystem& files, const Text& path, std::string_view bytes);

} // namespace quillon
