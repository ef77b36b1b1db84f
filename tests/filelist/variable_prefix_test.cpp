#include "filelist/variable_prefix.h"

#include "support/scripted_ask.h"

#include <array>

namespace quillon::test {
namespace {

constexpr std::array kTables = {PrefixTable::MainFolder, PrefixTable::ProgramOrDocument,
                                PrefixTable::Folder, PrefixTable::IconFile};

TEST(CompleteVariablePrefix, CompletesEachPrefixAsItsTableSays)
{
    struct Row {
        const char* prefix;
        std::array<const char*, 4> completion;
    };
    const Row rows[] = {
        {"%PR", {"%PROGRAMFILES\\", "%PROGRAMFILES\\", "%PROGRAMFILES\\", "%PROGRAMFILES\\"}},
        {"%MY", {"%MYDOCUMENTS\\", "%MYDOCUMENTS\\", "%MYDOCUMENTS\\", "%MYDOCUMENTS\\"}},
        {"%DE", {nullptr, "%DESTDIR\\", "%DESTDIR", "%DESTDIR\\"}},
        {"%WI", {nullptr, "%WINDIR\\", nullptr, nullptr}},
        {"%SY", {nullptr, "%SYSDIR\\", nullptr, nullptr}},
        {"%FO", {nullptr, nullptr, "%FONTDIR", nullptr}},
        {"%COMM", {nullptr, "%COMMONFILES\\", "%COMMONFILES\\", "%COMMONFILES\\"}},
        {"%COMP", {nullptr, "%COMPDIR\\", "%COMPDIR", "%COMPDIR\\"}},
    };
    for (const Row& row : rows)
        for (std::size_t table = 0; table < kTables.size(); ++table) {
            const auto completed = CompleteVariablePrefix(row.prefix, kTables[table]);
            const char* expected = row.completion[table];
            EXPECT_EQ(completed.has_value(), expected != nullptr) << row.prefix << " in " << table;
            if (completed && expected)
                EXPECT_EQ(*completed, expected) << row.prefix << " in " << table;
        }
}

TEST(CompleteVariablePrefix, LeavesEveryOtherTextAlone)
{
    for (const char* text : {"", "%", "%P", "%pr", "%Pr", "%PRO", "%CO", "%COM", "%comm", "%COMMO",
                             " %PR", "a%PR", "%PROGRAMFILES", "PR%", "%RE"})
        for (const PrefixTable table : kTables)
            EXPECT_FALSE(CompleteVariablePrefix(text, table)) << text;
}

/// What is in a field after these characters, typed one by one.
Text TypedInto(PrefixTable table, const Text& characters)
{
    Text shown;
    std::optional<TypedThrough> through;
    for (const char character : characters) {
        const Text typed(1, character);
        shown += typed;
        if (through && through->Follows()) {
            if (const auto other = through->Type(typed))
                shown = *other;
        } else if (const auto completion = CompleteVariablePrefix(shown, table)) {
            through.emplace(shown, *completion);
            shown = *completion;
        }
    }
    return shown;
}

TEST(TypedThrough, GivesAVariableThatIsTypedInFull)
{
    const Text inFull[] = {"%DESTDIR\\Bin",      "%DESTDIR",       "%PROGRAMFILES\\App",
                           "%MYDOCUMENTS\\Text", "%COMPDIR1\\Bin", "%COMMONFILES\\App",
                           "%DESTDRIVE\\Data",   "%PROGRAMGROUP"};
    for (const Text& text : inFull)
        EXPECT_EQ(TypedInto(PrefixTable::Folder, text), text);
    for (const Text text : {"%DESTDIR\\Bin", "%COMPDIR9\\a.exe", "%SYSDIR\\a.exe",
                            "%WINDIR\\WINHLP32.EXE", "%DESTDRIVE\\a.exe"})
        EXPECT_EQ(TypedInto(PrefixTable::ProgramOrDocument, text), text);
    EXPECT_EQ(TypedInto(PrefixTable::ProgramOrDocument, "%DESTDIR"), "%DESTDIR\\");
}

TEST(TypedThrough, LeavesWhatFollowsTheCompletedVariable)
{
    const std::pair<const char*, const char*> typed[] = {
        {"%DEBin", "%DESTDIR\\Bin"},          {"%DESetup.exe", "%DESTDIR\\Setup.exe"},
        {"%DESTd", "%DESTDIR\\STd"},          {"%PRODBC", "%PROGRAMFILES\\ODBC"},
        {"%PROgram", "%PROGRAMFILES\\Ogram"}, {"%DES\\a", "%DESTDIR\\S\\a"}};
    for (const auto& [keys, expected] : typed)
        EXPECT_EQ(TypedInto(PrefixTable::ProgramOrDocument, keys), expected) << keys;
    EXPECT_EQ(TypedInto(PrefixTable::Folder, "%DE\\Bin"), "%DESTDIR\\Bin");
    EXPECT_EQ(TypedInto(PrefixTable::Folder, "%COMP2\\Bin"), "%COMPDIR2\\Bin");
}

TEST(WarnIfLowerCaseVariable, TellsTheFieldByItsCaption)
{
    ScriptedAsk ask{
        {{BoxKind::Warn, "Variabelnamn ej korrekt",
          "Du har angett en variabel med gemener i fältet 'Filnamn'! En variabel får endast "
          "bestå av versaler, tex '%DESTDIR'."},
         {BoxKind::Warn, "Variabelnamn ej korrekt",
          "Du har angett en variabel med gemener i fältet 'Dokument'! En variabel får endast "
          "bestå av versaler, tex '%DESTDIR'."}}};
    WarnIfLowerCaseVariable("%destdir\\a.exe", "Filnamn", ask);
    WarnIfLowerCaseVariable("C:\\%åäö", "Dokument", ask);
}

TEST(WarnIfLowerCaseVariable, LooksAtTheFirstLetterOfTheFirstVariableAlone)
{
    ScriptedAsk ask;
    for (const char* text : {"", "a.exe", "%", "%1", "%DESTDIR\\a", "%Destdir", "%A\\%b", "%Åa"})
        WarnIfLowerCaseVariable(text, "Filnamn", ask);
}

TEST(TidyProgramPath, DropsTheLastBackslashAndWhatStandsBeforeAVariable)
{
    const std::pair<const char*, const char*> cases[] = {
        {"C:\\Temp\\%DESTDIR\\Prog.exe", "%DESTDIR\\Prog.exe"},
        {"%DESTDIR\\", "%DESTDIR"},
        {"C:\\%WINDIR\\", "%WINDIR"},
        {"C:\\a\\%DESTDIR\\%REG1", "%DESTDIR\\%REG1"},
        {"C:\\Prog.exe", "C:\\Prog.exe"},
        {"\\", ""},
        {"", ""},
    };
    for (const auto& [typed, tidied] : cases)
        EXPECT_EQ(TidyProgramPath(typed), tidied) << typed;
}

} // namespace
} // namespace quillon::test
