// Takes a file of sections and values apart, line by line: the readers and writers of INI files, of
// language files and of the importers' table go through it. What they have in common is here; where
// they differ, because the programs that wrote the files do, an `IniSyntax` says how.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace quillon {

struct IniSyntax {
    /// A line ends at LF or CR LF. A CR alone is a character like any other, or ends one as well.
    enum class LineEnd { AtLf, AtLfOrCr };
    /// The name of a section in "[a]b]c": "a]b", "a", or no name, since "]" has to end the line.
    enum class Header { ToLastBracket, ToFirstBracket, WholeLine };

    LineEnd lineEnd = LineEnd::AtLf;
    Header header = Header::ToLastBracket;
};

/// The rules of the Windows private-profile functions.
inline constexpr IniSyntax kProfileSyntax = {IniSyntax::LineEnd::AtLf,
                                             IniSyntax::Header::ToLastBracket};

/// A line of such a file. All views look into the scanned bytes.
struct ScannedLine {
    enum class Kind {
        Other, // neither of the following: a comment, a blank line, free text
        Header,
        OpenHeader, // of `ToFirstBracket` alone: the closing bracket is missing
        Value       // has a "="
    };
    Kind kind = Kind::Other;
    std::string_view whole; // without the line end
    std::string_view text;  // without the blanks (space, tab) round it, too
    std::string_view name;  // of the section, as it is between the brackets; or of the value, bare
    std::string_view value; // bare of blanks
    std::size_t begin = 0;  // offsets into the scanned bytes
    std::size_t end = 0;
    std::size_t next = 0; // after the line end
};

/// The line that begins at `begin`; an empty one there where the bytes end.
ScannedLine ScannedLineAt(std::string_view bytes, std::size_t begin, IniSyntax syntax);

class IniScanner {
public:
    IniScanner(std::string_view bytes, IniSyntax syntax, std::size_t begin = 0)
        : bytes_(bytes), syntax_(syntax), next_(begin)
    {
    }

    /// The next line; nothing after the last one.
    std::optional<ScannedLine> Next();

private:
    std::string_view bytes_;
    IniSyntax syntax_;
    std::size_t next_;
};

/// Without the spaces and tabs round it.
std::string_view WithoutBlanks(std::string_view bytes);

} // namespace quillon
