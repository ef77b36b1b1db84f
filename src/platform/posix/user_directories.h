// The file in which a desktop keeps where its user's documents, templates and so on lie:
//   XDG_DOCUMENTS_DIR="$HOME/Dokument"
#pragma once

#include <optional>
#include <string>

namespace quillon {

/// The folder that the file names by this key, an absolute path; nothing where it names none.
std::optional<std::string> FindUserDirectory(const std::string& file, const std::string& key,
                                             const std::string& home);

} // namespace quillon
