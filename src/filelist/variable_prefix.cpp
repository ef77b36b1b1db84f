#include "filelist/variable_prefix.h"

#include "formats/variable_names.h"

#include <algorithm>

namespace quillon {

namespace {

struct VariablePrefix {
    std::string_view prefix;
    // Empty where the field does not know the variable.
    std::string_view mainFolder;
    std::string_view programOrDocument;
    std::string_view folder;
    std::string_view iconFile;

    constexpr std::string_view CompletionIn(PrefixTable table) const
    {
        switch (table) {
        case PrefixTable::MainFolder:
            return mainFolder;
        case PrefixTable::ProgramOrDocument:
            return programOrDocument;
        case PrefixTable::Folder:
            return folder;
        case PrefixTable::IconFile:
            return iconFile;
        }
        return {};
    }
};

// A field for a folder gets no backslash, since the variable's own folder may be meant; a field for
// a file needs one in front of the name. A component's number is the user's to type.
// clang-format off
constexpr VariablePrefix kPrefixes[] = {
    //        main folder         program, document   folder              icon file
    {"%PR",   "%PROGRAMFILES\\", "%PROGRAMFILES\\", "%PROGRAMFILES\\", "%PROGRAMFILES\\"},
    {"%MY",   "%MYDOCUMENTS\\",  "%MYDOCUMENTS\\",  "%MYDOCUMENTS\\",  "%MYDOCUMENTS\\"},
    {"%DE",   "",                "%DESTDIR\\",      "%DESTDIR",        "%DESTDIR\\"},
    {"%WI",   "",                "%WINDIR\\",       "",                ""},
    {"%SY",   "",                "%SYSDIR\\",       "",                ""},
    {"%FO",   "",                "",                "%FONTDIR",        ""},
    {"%COMM", "",                "%COMMONFILES\\",  "%COMMONFILES\\",  "%COMMONFILES\\"},
    {"%COMP", "",                "%COMPDIR\\",      "%COMPDIR",        "%COMPDIR\\"},
};
// clang-format on

// A single letter may as well begin a folder after the completed variable.
constexpr std::size_t kMeansAnotherVariable = 2;

bool BeginsVariable(std::string_view text)
{
    return std::ranges::any_of(kVariableNames, [text](const VariableName& variable) {
        return variable.name.starts_with(text);
    });
}

} // namespace

std::optional<Text> CompleteVariablePrefix(std::string_view text, PrefixTable table)
{
    for (const VariablePrefix& row : kPrefixes) {
        const std::string_view completion = row.CompletionIn(table);
        if (row.prefix == text && !completion.empty())
            return Text(completion);
    }
    return std::nullopt;
}

TypedThrough::TypedThrough(std::string_view typed, std::string_view completion)
    : completion_(completion), typed_(typed), rest_(completion.substr(typed.size()))
{
}

std::optional<Text> TypedThrough::Type(std::string_view character)
{
    const bool isInCompletion = !character.empty() && rest_.starts_with(character);
    typed_ += character;
    if (isInCompletion) {
        rest_.erase(0, character.size());
        swallowed_ += character.size();
        return completion_;
    }
    const bool typedTheWord = rest_ == "\\";
    const bool typesAnother = swallowed_ >= kMeansAnotherVariable && BeginsVariable(typed_);
    rest_.clear();
    if (typedTheWord || typesAnother)
        return typed_;
    // The letters were no part of the variable after all.
    if (swallowed_ > 0)
        return completion_ + typed_.substr(typed_.size() - character.size() - swallowed_);
    return std::nullopt;
}

void WarnIfLowerCaseVariable(std::string_view text, const Text& fieldName, Ask& ask)
{
    // Kept: only the first variable is looked at, and only its first letter.
    const std::size_t mark = text.find('%');
    if (mark == std::string_view::npos)
        return;
    const Text letter = FirstCharacters(text.substr(mark + 1), 1);
    if (UpperCase(letter) == letter)
        return;
    ask.Warn("Variabelnamn ej korrekt",
             "Du har angett en variabel med gemener i fältet '" + fieldName +
                 "'! En variabel får endast bestå av versaler, tex '%DESTDIR'.");
}

Text TidyProgramPath(std::string_view typed)
{
    if (typed.ends_with('\\'))
        typed.remove_suffix(1);
    const std::size_t variable = typed.find("\\%");
    return Text(variable == std::string_view::npos ? typed : typed.substr(variable + 1));
}

} // namespace quillon
