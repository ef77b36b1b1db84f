// The list sections of the project file: free lines up to a line of four dots. Which lists there
// are, which flag on file says that one is in use and what a load does without it is in one
// table, which writer and reader share.
#pragma once

#include "platform/whole_file.h"
#include "project/records.h"

#include <optional>
#include <string_view>

namespace quillon {

struct ListSection {
    // How a line of the text is on file: as it is, or after a ">" that keeps it from being
    // taken for a section of the project file.
    enum class Lines { Plain, Marked };
    enum class WithoutFlag { Empty, Keep };

    const char* name;
    Text section::Lists::*text;
    Lines lines = Lines::Plain;
    // The flag that says whether the list holds anything; none for a list that is always read.
    const char* flagSection = nullptr;
    const char* flag = nullptr;
    WithoutFlag withoutFlag = WithoutFlag::Empty;
};

// clang-format off
inline constexpr ListSection kListSections[] = {
    {"RunScriptBefore",  &section::Lists::RunScriptBefore},
    {"RunScriptAfter",   &section::Lists::RunScriptAfter},
    {"Registry",         &section::Lists::Registry,         ListSection::Lines::Plain,  "Configuration", "RegistryUse"},
    {"INIFiles",         &section::Lists::INIFiles,         ListSection::Lines::Marked, "Configuration", "INIFilesUse"},
    // Kept: an open project's startup lines live on in the next one that has none.
    {"AutoexecBat",      &section::Lists::AutoexecBat,      ListSection::Lines::Plain,  "Configuration", "AutoexecBatUse", ListSection::WithoutFlag::Keep},
    {"ConfigSys",        &section::Lists::ConfigSys,        ListSection::Lines::Plain,  "Configuration", "ConfigSysUse",   ListSection::WithoutFlag::Keep},
    {"RegisterFileList", &section::Lists::RegisterFileList, ListSection::Lines::Plain,  "RegisterFiles", "FileRegisterListUsed"},
};
// clang-format on

/// All of them in the order on file, each after the section that holds its flag.
void WriteListSections(AnsiTextFile& file, const section::Lists& lists);

/// The lines of a project file as its lists see them. A line ends at CR LF and at the end of the
/// file; a lone CR or LF belongs to the line, so that a text comes back as it was saved.
class ListLines {
public:
    explicit ListLines(std::string_view bytes) : bytes_(bytes) {}

    /// Goes after the first line that is exactly "[name]"; false when there is none.
    bool FindSection(std::string_view name);
    /// Nothing at the end of the file.
    std::optional<std::string_view> Next();

private:
    std::string_view bytes_;
    std::size_t position_ = 0;
};

/// Reads the lines up to the four dots into `text`; false when the file ends before them. `text`
/// has what there was in either case.
bool ReadTextList(ListLines& lines, const ListSection& list, Text& text);

} // namespace quillon
