// What Windows can hold as the name of a file and as a folder. The tool asks before a row is made,
// `verify` and the setup before anything is written, all by the one answer given here.
#pragma once

#include "helpers/text.h"

#include <string_view>

namespace quillon {

enum class PathFault {
    None,
    Empty,
    Character,       // one of < > : " | ? * and the separators
    Control,         // a character below the blank, such as a line break
    End,             // a dot or blank at the end, which Windows takes away
    Device,          // CON, NUL, COM1 and the like, also with an extension
    TooLong,         // more characters than a name can have
    Climbs,          // ".."
    Colon,           // anywhere but after the letter of a drive
    NotAbsolute,     // no folder at all, or one that depends on the current folder: "C:Data"
    UnknownVariable, // at the beginning, where it has to name a folder
};

/// What keeps this text from being the name of one file or folder.
PathFault FaultOfName(std::string_view name);

/// What keeps this text, without variables, from being a folder: on a drive, on a network share, or
/// below a folder that is given elsewhere. Slashes count as backslashes, and empty parts for
/// nothing.
PathFault FaultOfFolder(std::string_view path);

/// A text as a file name: characters that no file name holds become hyphens.
Text AsFileName(std::string_view text);

} // namespace quillon
