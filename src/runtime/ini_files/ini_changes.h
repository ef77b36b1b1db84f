// Writes the INI list to the machine's INI files, and takes single changes back at uninstallation.
#pragma once

#include "runtime/ini_files/ini_lines.h"
#include "runtime/journal/install_transaction.h"

namespace quillon {

struct IniWork {
    FileSystem& files;
    InstallTransaction& transaction;
    InstallJournal& journal;
    ActionLog& log;
};

/// The lines' files are absolute paths.
void WriteIniFiles(const IniWork& work, const std::vector<IniLine>& lines);

struct FileRewriting {
    FileSystem& files;
    Target& target;
};

void UndoIniChange(const FileRewriting& rewriting, const record::IniFile& record);
void UndoIniChange(const FileRewriting& rewriting, const record::IniOpenEnd& record);
void UndoIniChange(const FileRewriting& rewriting, const record::IniSection& record);
void UndoIniChange(const FileRewriting& rewriting, const record::IniValue& record);

/// The old file stays until the new one is whole, which has its rights and attributes. A removal
/// that was broken off here is repeated, and then finds its temporary file under the same name.
void RewriteFile(const FileRewriting& rewriting, const Text& path, std::string_view bytes);

} // namespace quillon
