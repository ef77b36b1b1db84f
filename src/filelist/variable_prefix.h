// Help while a variable is typed: the first letters of one become the whole word, and a variable in
// small letters, which the setup would not know, is told.
#pragma once

#include "platform/ask.h"

#include <optional>
#include <string_view>

namespace quillon {

/// The kinds of fields that complete variables. They differ in which variables make sense there,
/// and in whether a file name is still to follow behind the variable.
enum class PrefixTable {
    MainFolder,        // tDestinationDirectory
    ProgramOrDocument, // tProgramName1, tProgramName2, tDocumentFileName
    Folder,            // ctDirectory, tWorkDir of DlgIcon
    IconFile           // tIconFile of DlgIcon
};

/// What a text that was just typed becomes; nothing where it is no prefix of this table. Capitals
/// alone count, and only a text that is the prefix and no more.
std::optional<Text> CompleteVariablePrefix(std::string_view text, PrefixTable table);

/// Tells that the first variable of the text is written in small letters. `fieldName` is the
/// caption of the field as the user reads it.
void WarnIfLowerCaseVariable(std::string_view text, const Text& fieldName, Ask& ask);

/// A program's or document's path as its field is left: without a trailing backslash, and without
/// the folders that a file dialog put in front of a variable.
Text TidyProgramPath(std::string_view typed);

} // namespace quillon
