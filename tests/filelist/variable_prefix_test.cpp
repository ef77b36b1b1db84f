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
