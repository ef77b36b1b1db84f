// The table of what no project file says: which controls are built with MFC, which modules call
// which library, and which libraries are part of Windows. It is a text file that comes with the
// tool, and its users may extend it.
#pragma once

#include "platform/ask.h"
#include "platform/file_system.h"

#include <set>
#include <string_view>
#include <vector>

namespace quillon {

inline constexpr const char* kImportDataFile = "ImportData.txt";

class ImportData {
public:
    /// A line of the table that is none: its number, from 1, and why.
    struct Fault {
        int line;
        Text reason;

        bool operator==(const Fault&) const = default;
    };

    /// Takes in the rows of a file; what is damaged comes back and is left out.
    std::vector<Fault> Add(std::string_view bytes);

    /// Needs Mfc42.dll and Msvcrt.dll.
    bool IsMfcControl(std::string_view fileName) const;
    /// The libraries that a module calls, identified by its own name or that of its file.
    std::vector<Text> LibrariesOfModule(std::string_view name, std::string_view fileName) const;
    /// The libraries whose wrappers a line names; `upperLine` is in upper case.
    std::vector<Text> LibrariesOfWrappersIn(std::string_view upperLine) const;
    bool IsPartOfWindows(std::string_view library) const;

private:
    using Row = std::string_view;
    Text AddRow(std::string_view section, Row row);

    struct LibraryRule {
        Text name; // in upper case
        Text library;
    };
    static Text AddLibraryRule(Row row, std::vector<LibraryRule>& rows);
    Text AddWindowsLibrary(const Text& name);

    std::set<Text> controls_;
    std::vector<LibraryRule> modules_;
    std::vector<LibraryRule> wrappers_;
    std::set<Text> windows_;
    std::vector<Text> windowsBeginnings_; // of "api-ms-win-*"
};

/// The table of the tool's folder, then that of the folder where the tool writes, if one lies
/// there. What is missing or damaged is reported in a message box.
ImportData ReadImportData(const FileSystem& files, const Text& toolFolder, const Text& ownFolder,
                          Ask& ask);

} // namespace quillon
