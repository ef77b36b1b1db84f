// Writes the INI list to the machine's INI files, and takes single changes back at uninstallation.
#pragma once

#include "runtime/changes.h"
#include "runtime/ini_lines.h"

namespace quillon {

struct IniWork {
    FileSystem& files;
    Changes& changes;
    InstallLog& record;
    TextLog& log;
};

/// The lines' files are whole paths.
void WriteIniFiles(const IniWork& work, const std::vector<IniLine>& lines);

void TakeBackIniChange(FileSystem& files, const record::IniFile& record);
void TakeBackIniChange(FileSystem& files, const record::IniOpenEnd& record);
void TakeBackIniChange(FileSystem& files, const record::IniSection& record);
void TakeBackIniChange(FileSystem& files, const record::IniValue& record);

} // namespace quillon
