// The language files of the setup: which there are, and how a new one is made from the reference.
// The texts in them are read by the setup alone.
#pragma once

#include "platform/ask.h"
#include "platform/data_folders.h"
#include "platform/host.h"
#include "project/reference_language.h"

#include <optional>
#include <vector>

namespace quillon {

/// The folders in which language files lie; those that users add go into `own`.
struct LanguageFolders : DataFolders {
    LanguageFolders(const Text& toolFolder, const Text& ownFolder = {})
        : DataFolders(toolFolder, ownFolder, "Language")
    {
    }
};

/// Their names, sorted; none where the folder is missing. A folder that can't be read is reported.
std::vector<Text> LanguageFiles(const FileSystem& files, const LanguageFolders& folders, Ask& ask);

/// The file that is made for a typed name.
Text LanguageFileName(std::string_view typed);

/// False, and shows why, where no project could name this file or no disk could hold it.
bool CanBeLanguageFile(const Text& name, Ask& ask);

/// Asks for a name and makes a copy of the reference under it; its name. Nothing where the user
/// gave none, or where it could not be made, which a message box reports.
std::optional<Text> AddLanguage(const Host& host, const LanguageFolders& folders, Ask& ask);

/// Opens a language file in a text editor and does not wait for it; reports it where that can't be
/// done.
void EditLanguage(const Host& host, const LanguageFolders& folders, const Text& name, Ask& ask);

} // namespace quillon
