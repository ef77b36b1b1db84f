#include "actions/registry_list.h"

#include "platform/registry_roots.h"
#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

using Type = RegistryValueType;

constexpr const char* kNoNumber =
    "Texten du skrev in vid 'Data' är ej ett giltigt tal. Ett tal får endast innehålla siffor "
    "(0-9), plustecken (+) och minustecken(-). Endast decimala tal kan anges (ej hexadecimala).";
constexpr const char* kNoBinary =
    "Texten du skrev in  vid 'Data' är ej ett giltigt binärt värde! Ett binärt värde ska anges "
    "som en serie hexademimala tal med mellanslag mellan talen, tex 'A2 FF 32'.";

TEST(SubKeyOnChoiceOfRoot, KnowsTheRootsThatHaveTheSoftwareFolder)
{
    struct Row {
        std::size_t root;
        const char* whenEmpty;
        const char* whenPreset;
    };
    for (const auto& [root, whenEmpty, whenPreset] :
         {Row{0, "", ""}, Row{1, "\\SOFTWARE\\", "\\SOFTWARE\\"},
          Row{2, "\\SOFTWARE\\", "\\SOFTWARE\\"}, Row{3, "", ""}, Row{4, "", "\\SOFTWARE\\"},
          Row{5, "", "\\SOFTWARE\\"}}) {
        SCOPED_TRACE(kRegistryRoots[root]);
        EXPECT_EQ(SubKeyOnChoiceOfRoot("", kRegistryRoots[root]), whenEmpty);
        EXPECT_EQ(SubKeyOnChoiceOfRoot("\\SOFTWARE\\", kRegistryRoots[root]), whenPreset);
        for (const char* typed : {"\\SOFTWARE\\Firma", "\\SOFTWARE", "\\Software\\", "x"})
            EXPECT_EQ(SubKeyOnChoiceOfRoot(typed, kRegistryRoots[root]), typed);
    }
}

TEST(SubKeyOnLeave, BeginsWithABackslash)
{
    EXPECT_EQ(SubKeyOnLeave("Software\\X"), "\\Software\\X");
    EXPECT_EQ(SubKeyOnLeave("\\Software"), "\\Software");
    EXPECT_EQ(SubKeyOnLeave(" \\x"), "\\ \\x");
    EXPECT_EQ(SubKeyOnLeave(""), "");
}

TEST(NameOnChoiceOfType, FollowsTheStandardValue)
{
    EXPECT_EQ(NameOnChoiceOfType("Version", Type::Standard), "(Standard)");
    EXPECT_EQ(NameOnChoiceOfType("", Type::Standard), "(Standard)");
    for (const Type type : {Type::String, Type::Dword, Type::Binary}) {
        EXPECT_EQ(NameOnChoiceOfType("(Standard)", type), "");
        EXPECT_EQ(NameOnChoiceOfType("Version", type), "Version");
    }
}

TEST(HasSubKey, TellsAMissingOne)
{
    ScriptedAsk ask{{{BoxKind::Inform, "Info", "Ingen subnyckel har definierats!"}}};
    EXPECT_FALSE(HasSubKey("", ask));
    EXPECT_TRUE(HasSubKey("\\", ask));
}

TEST(IsRegistryNumber, IsASignedDecimalOf32Bits)
{
    for (const char* number : {"", "0", "7", "-5", "+7", "-0", "007", "2147483647", "+2147483647",
                               "-2147483648", "00000000000000000000000000000000002147483647"})
        EXPECT_TRUE(IsRegistryNumber(number)) << number;
    for (const char* number : {"0x10",
                               "&H10",
                               "2147483648",
                               "-2147483649",
                               "4294967295",
                               "+",
                               "-",
                               "+-1",
                               "--1",
                               "1-",
                               "1.5",
                               "1,5",
                               "1e3",
                               " 1",
                               "1 ",
                               "1 000",
                               "x",
                               "٣",
                               "99999999999999999999",
                               "-99999999999999999999",
                               "18446744073709551617"})
        EXPECT_FALSE(IsRegistryNumber(number)) << number;
}

TEST(IsRegistryBinary, IsAboutTheBlanksBetweenTheBytes)
{
    for (const char* bytes : {"", "A2", "A2 FF", "A2 FF 32", "ZZ QQ", "åä öÅ", "a2 ff", "  "})
        EXPECT_TRUE(IsRegistryBinary(bytes)) << bytes;
    for (const char* bytes : {"A", "A2F", "A2 ", "A2FF", "A2 F", "A2  FF", "A2-FF", "A2 FF-32",
                              "A2 FF 3", "å", "A2\tFF", "A2FF32", "A2 FF32 "})
        EXPECT_FALSE(IsRegistryBinary(bytes)) << bytes;
}

TEST(CheckRegistryData, TellsWhatIsWrongWithIt)
{
    ScriptedAsk ask{{{BoxKind::Critical, "Fel", kNoNumber}, {BoxKind::Critical, "Fel", kNoBinary}}};
    Text data = "0x10";
    EXPECT_FALSE(CheckRegistryData(Type::Dword, data, ask));
    EXPECT_FALSE(CheckRegistryData(Type::Binary, data, ask));
    EXPECT_TRUE(CheckRegistryData(Type::String, data, ask));
    EXPECT_TRUE(CheckRegistryData(Type::Standard, data, ask));
    EXPECT_EQ(data, "0x10");
}

TEST(CheckRegistryData, TrimsBinaryDataAlone)
{
    ScriptedAsk ask;
    Text data = "  A2 FF ";
    EXPECT_TRUE(CheckRegistryData(Type::String, data, ask));
    EXPECT_EQ(data, "  A2 FF ");
    EXPECT_TRUE(CheckRegistryData(Type::Binary, data, ask));
    EXPECT_EQ(data, "A2 FF");
    data = "   ";
    EXPECT_TRUE(CheckRegistryData(Type::Binary, data, ask));
    EXPECT_EQ(data, "");
}

TEST(MakeRegistryLine, WritesEachTypeInItsForm)
{
    struct Row {
        RegistryEntry entry;
        const char* line;
    };
    const Text root = "HKEY_LOCAL_MACHINE";
    const Text key = "\\SOFTWARE\\Firma\\Prog";
    for (const auto& [entry, line] : {
             Row{{root, key}, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Prog"},
             Row{{root, key, "Version", "1.0"},
                 "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Prog :: Version=\"1.0\""},
             Row{{root, key, "Name", ""}, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Prog :: Name=\"\""},
             Row{{root, key, "(Standard)", "x", Type::Standard},
                 "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Prog :: (Standard)=\"x\""},
             Row{{root, key, "N", "+7", Type::Dword},
                 "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Prog :: N=+7"},
             Row{{root, key, "N", "-5", Type::Dword},
                 "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Prog :: N=-5"},
             Row{{root, key, "N", "", Type::Dword},
                 "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Prog :: N=0"},
             Row{{root, key, "B", "A2 FF 32", Type::Binary},
                 "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Prog :: B=!A2 FF 32"},
             Row{{root, key, "B", "", Type::Binary},
                 "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Prog :: B=!"},
             Row{{root, "\\a", "P", "%DESTDIR\\\"x\""},
                 "HKEY_LOCAL_MACHINE\\a :: P=\"%DESTDIR\\\"x\"\""},
             Row{{"HKEY_USERS", "\\.Default\\", "a", "b"}, "HKEY_USERS\\.Default :: a=\"b\""},
             Row{{"HKEY_USERS", "\\x\\\\"}, "HKEY_USERS\\x\\"},
             Row{{"HKEY_USERS", "\\"}, "HKEY_USERS"},
         })
        EXPECT_EQ(MakeRegistryLine(entry), line);
}

TEST(MakeRegistryLine, LeavesOutDataWithoutAName)
{
    for (const Type type : {Type::String, Type::Dword, Type::Binary})
        EXPECT_EQ(MakeRegistryLine({"HKEY_USERS", "\\x", "", "12", type}), "HKEY_USERS\\x");
}

TEST(MakeRegistryRemovalLine, NamesTheKeyOrOneValueOfIt)
{
    using enum RegistryRemoval;
    EXPECT_EQ(MakeRegistryRemovalLine(AtInstallation, "HKEY_USERS", "\\x\\", ""),
              "DELETE=HKEY_USERS\\x");
    EXPECT_EQ(MakeRegistryRemovalLine(AtInstallation, "HKEY_USERS", "\\x\\\\", "v"),
              "DELETE=HKEY_USERS\\x\\ :: v");
    EXPECT_EQ(MakeRegistryRemovalLine(AtUninstallation, "HKEY_USERS", "\\x", ""),
              "UNINSTALL=HKEY_USERS\\x");
    EXPECT_EQ(MakeRegistryRemovalLine(AtUninstallation, "HKEY_USERS", "\\x", "(Standard)"),
              "UNINSTALL=HKEY_USERS\\x :: (Standard)");
}

TEST(RegistryLineToAppend, BeginsALineOfItsOwn)
{
    EXPECT_EQ(RegistryLineToAppend("", "a"), "a");
    EXPECT_EQ(RegistryLineToAppend("x", "a"), "\r\na");
    EXPECT_EQ(RegistryLineToAppend("x\r\n", "a"), "\r\na");
}

} // namespace
} // namespace quillon::test
