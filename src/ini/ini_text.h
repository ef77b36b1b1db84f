// Changes single values of an INI file and leaves every other byte as it is: comments, order, blank
// lines, the kind of line breaks. Sections and names ignore case; the first of two equal ones
// counts, as the system's own profile functions read.
#pragma once

#include "helpers/text.h"
#include "ini/ini_scanner.h"

#include <optional>
#include <string>

namespace quillon {

/// An INI file as bytes on file. Texts that go in and out are in the same encoding as the bytes.
class IniText {
public:
    /// How names are compared without case. In bytes of an unknown code page only the letters A to
    /// Z have another case.
    enum class Names { Bytes, Utf8 };

    explicit IniText(std::string bytes, Names names = Names::Bytes)
        : bytes_(std::move(bytes)), names_(names)
    {
    }

    const std::string& Bytes() const { return bytes_; }

    bool HasSection(std::string_view section) const;
    /// Without the blanks round it.
    std::optional<std::string> Value(std::string_view section, std::string_view name) const;
    /// The whole line of a value, with its blanks, but without the line break.
    std::optional<std::string> LineOf(std::string_view section, std::string_view name) const;
    /// The last line where no line break follows it; else nothing.
    std::string OpenLastLine() const;

    /// An empty section is made at the end of the file where it is missing.
    void MakeSection(std::string_view section);
    /// Replaces the value, or adds it after the last value of its section.
    void SetValue(std::string_view section, std::string_view name, std::string_view value);
    /// Replaces the line of a value that there is.
    void SetLine(std::string_view section, std::string_view name, std::string_view line);
    void RemoveValue(std::string_view section, std::string_view name);
    /// Removes the section's line if the section holds nothing but blank lines.
    void RemoveEmptySection(std::string_view section);
    /// Takes the line break away that follows the last line, if that is this line.
    void RemoveFinalLineBreakAfter(std::string_view lastLine);

private:
    std::optional<ScannedLine> FindSection(std::string_view section) const;
    std::optional<ScannedLine> FindValue(std::string_view section, std::string_view name) const;
    bool SameName(std::string_view left, std::string_view right) const;
    void Insert(std::size_t at, std::string text);

    std::string bytes_;
    Names names_;
};

} // namespace quillon
