// The language files of the setup: which there are, and how a new one is made from the reference.
// What stands in them is the setup's own matter.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"

#include <optional>
#include <vector>

namespace quillon {

// The base of every other language.
inline constexpr const char* kReferenceLanguage = "SWEDISH.LNG";

/// Where language files lie.
Text LanguageFolder(const Text& toolFolder);

/// Their names, sorted; none where the folder is missing. A folder that can't be read is told.
std::vector<Text> LanguageFiles(const FileSystem& files, const Text& toolFolder, Ask& ask);

/// The file that is made for a typed name.
Text LanguageFileName(std::string_view typed);

/// False, and tells why, where no project could name this file or no disk could hold it.
bool CanBeLanguageFile(const Text& name, Ask& ask);

/// Asks for a name and makes a copy of the reference under it; its name. Nothing where the user
/// gave none or, told by a box, where it could not be made.
std::optional<Text> AddLanguage(const Host& host, const Text& toolFolder, Ask& ask);

/// Opens a language file in a text editor and does not wait for it; tells where that can't be done.
void EditLanguage(const Host& host, const Text& toolFolder, const Text& name, Ask& ask);

} // namespace quillon
