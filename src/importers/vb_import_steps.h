// The steps that the imports of Visual Basic 5 and 6 share.
#pragma once

#include "importers/row_import.h"

namespace quillon {

inline constexpr ImportChecks kVbChecks = {
    .bothMissing = "Du måste välja en projektfil (.VBP) och tillhörande programfil (.EXE) först!",
    .programMissing =
        "Du måste välja den programfil (.EXE) som ditt Visual basic-projekt skapar vid kompilering "
        "först! Du väljer en programfil genom att trycka på knappen 'Välj programfil...'.",
    .projectMissing = "Du måste välja en Visual Basic projektfil (.VBP) först !"};

// What is taken from the system folder.
inline constexpr const char* kVbFiles = "Visual Basics filer";

/// False, with a message box, where the folder of this version is not given or not there.
bool IsVbFolderThere(const char* version, const Text& folder, const FileSystem& files, Ask& ask);

/// The ActiveX files that a project file names. What of it can't be read is reported in a message
/// box; what was read counts.
std::vector<Text> ReadActiveXFiles(const FileSystem& files, const Text& project, Ask& ask);

/// An ActiveX file that the project names. One that is not in the system folder is reported.
void AddControl(RowImport& import, const Text& name);

struct ClosingMessage {
    const char* title;
    const char* text;
};

/// The end of an import: the program with its destination, its icon, and what is said at last.
ImportEnd EndVbImport(RowImport& import, const Text& program, bool withIcon,
                      const ClosingMessage& message);

} // namespace quillon
