// How the bytes of a profile file (an INI file and its kin) fall into lines, sections and keys.
// Everything here works on the bytes as they lie on file; only the caller makes texts of them.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillon {

/// A line without its line end, and where the next one begins. A line ends at LF or CR LF; a lone
/// CR is a character like any other.
struct ProfileLine {
    std::string_view text;
    std::size_t begin = 0;
    std::size_t next = 0;
};

ProfileLine ProfileLineAt(std::string_view bytes, std::size_t begin);

/// What stands between the brackets of a section's header; nothing on any other line.
std::optional<std::string_view> SectionNameOfLine(std::string_view line);

struct ProfileEntry {
    std::string_view key;
    std::string_view value;
};

/// Key and value of a setting, both without the blanks round them; nothing on a line without "=".
std::optional<ProfileEntry> EntryOfLine(std::string_view line);

/// The form in which names are compared: the letters of Windows-1252 in lower case.
std::string FoldedName(std::string_view bytes);
/// The comparison without making that form.
bool EqualFolded(std::string_view left, std::string_view right);
/// The same for equal names.
std::size_t FoldedHash(std::string_view bytes);

/// Without the blanks round it, then without one matching pair of quotation marks.
std::string_view BareValue(std::string_view bytes);

/// Where each section lies. The first one of a name counts, as it does on Windows.
class ProfileSections {
public:
    /// From the line behind the header to the next header or the end of the file.
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
