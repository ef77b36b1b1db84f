// The version resource of a Windows program or library: who made it and which version it is.
#pragma once

#include "helpers/program_headers.h"
#include "helpers/text.h"

namespace quillon {

/// In the order in which they are handed about; at most 300 characters each.
struct FileVersionData {
    Text FileVersion; // the text of this name, else the four numbers: "1.2.3.4"
    Text ProductName;
    Text CompanyName;
    Text FileDescription;
    Text LegalCopyright;
    Text ProductVersion; // as FileVersion

    bool operator==(const FileVersionData&) const = default;
};

/// Reads a 32-bit or 64-bit program, whatever the language of its resource; each text is the first
/// one given in any language. All empty for a file that is no such program, that has no version
/// resource, or whose resource is damaged. Only the headers and the resource are read.
FileVersionData GetFileVersionData(const ReadFileAt& read);

} // namespace quillon
