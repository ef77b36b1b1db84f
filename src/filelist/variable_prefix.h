// Help while a variable is typed: the first letters of one become the whole word, and a variable in
// small letters, which the setup would not know, is reported.
#pragma once

#include "platform/ask.h"

#include <optional>
#include <string_view>

namespace quillon {

/// The kinds of fields that complete variables. They differ in which variables make sense there,
/// and in whether a file name is still to follow after the variable.
enum class PrefixTable {
    MainFolder,        // tDestinationDirectory
    ProgramOrDocument, // tProgramName1, tProgramName2, tDocumentFileName
    Folder,            // ctDirectory, tWorkDir of DlgIcon
    IconFile           // tIconFile of DlgIcon
};

/// What a text that was just typed becomes; nothing where it is no prefix of this table. Capitals
/// alone count, and only a text that is the prefix and no more.
std::optional<Text> CompleteVariablePrefix(std::string_view text, PrefixTable table);

/// Follows a user who types a variable in full although it was completed at its first letters: what
/// already is there is not put in once more.
class TypedThrough {
public:
    /// `typed` is the prefix that became `completion`.
    TypedThrough(std::string_view typed, std::string_view completion);

    /// What the field shows now that this character came after the completion; nothing where it
    /// shows the character as it is.
    std::optional<Text> Type(std::string_view character);
    /// False once the user has left the completion's own letters; later characters mean themselves.
    bool Follows() const { return !rest_.empty(); }

private:
    Text completion_;
    Text typed_;                // as if nothing had been completed
    std::size_t swallowed_ = 0; // bytes at the end of `typed_` that stood in the completion
    Text rest_;                 // what of the completion was not typed yet
};

/// Tells that the first variable of the text is written in small letters. `fieldName` is the
/// caption of the field as the user reads it.
void WarnIfLowerCaseVariable(std::string_view text, const Text& fieldName, Ask& ask);

/// A program's or document's path as its field is left: without a trailing backslash, and without
/// the folders that a file dialog put in front of a variable.
Text TidyProgramPath(std::string_view typed);

} // namespace quillon
