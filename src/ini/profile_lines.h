// Names, values and sections of a profile file (an INI file and its kin), as the Windows
// private-profile functions take them. Everything here works on bytes as they are on file; only the
// caller makes texts of them.
#pragma once

#include "ini/ini_scanner.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillon {

/// The form in which names are compared: the letters of Windows-1252 in lower case.
std::string FoldedName(std::string_view bytes);
/// The comparison without making that form.
bool EqualFolded(std::string_view left, std::string_view right);
/// The same for equal names.
std::size_t FoldedHash(std::string_view bytes);

/// Without the blanks round it, then without one matching pair of quotation marks.
std::string_view BareValue(std::string_view bytes);

/// Where each section is. The first one of a name counts, as it does on Windows.
class ProfileSections {
public:
    /// From the line after the header to the next header or the end of the file.
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
    };

    ProfileSections() = default;
    explicit ProfileSections(std::string_view bytes);

    std::optional<Range> Find(std::string_view name) const;

private:
    std::unordered_map<std::string, Range> ranges_; // by folded name
};

} // namespace quillon
