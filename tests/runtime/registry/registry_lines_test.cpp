#include "runtime/registry/registry_lines.h"

#include "runtime/texts/language_file.h"

#include <gtest/gtest.h>

namespace quillon {

using Kind = RegistryLine::Kind;

TEST(ReadRegistryLine, ReadsAKeyAlone)
{
    const RegistryLine line = ReadRegistryLine(R"(HKEY_CURRENT_USER\SOFTWARE\Firma)");
    EXPECT_EQ(line.kind, Kind::Key);
    EXPECT_EQ(line.key, (RegistryKey{RegistryRoot::CurrentUser, R"(SOFTWARE\Firma)"}));
}

TEST(ReadRegistryLine, ReadsATextValue)
{
    const RegistryLine line =
        ReadRegistryLine(R"(HKEY_LOCAL_MACHINE\SOFTWARE\Firma\Prog :: Version="1.0")");
    EXPECT_EQ(line.kind, Kind::TextValue);
    EXPECT_EQ(line.key, (RegistryKey{RegistryRoot::LocalMachine, R"(SOFTWARE\Firma\Prog)"}));
    EXPECT_EQ(line.valueName, "Version");
    EXPECT_EQ(line.text, "1.0");
}

TEST(ReadRegistryLine, ReadsTextsThatHoldTheMarksThemselves)
{
    const RegistryLine line =
        ReadRegistryLine(R"(HKEY_CLASSES_ROOT\a :: (Standard)=""%DESTDIR\p.exe" "%1" :: x=1")");
    EXPECT_EQ(line.kind, Kind::TextValue);
    EXPECT_EQ(line.valueName, "");
    EXPECT_EQ(line.text, R"("%DESTDIR\p.exe" "%1" :: x=1)");
    EXPECT_EQ(ReadRegistryLine(R"(HKEY_CLASSES_ROOT\a :: Namn="")").text, "");
}

struct NumberCase {
    const char* text;
    std::uint32_t number;
};
class NumberValue : public testing::TestWithParam<NumberCase> {};

TEST_P(NumberValue, IsRead)
{
    const RegistryLine line =
        ReadRegistryLine(Text(R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N=)") + GetParam().text);
    EXPECT_EQ(line.kind, Kind::NumberValue);
    EXPECT_EQ(line.number, GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(, NumberValue,
                         testing::Values(NumberCase{"0", 0}, NumberCase{"7", 7},
                                         NumberCase{"+7", 7}, NumberCase{"-5", 0xFFFFFFFBU},
                                         NumberCase{"-2147483648", 0x80000000U},
                                         NumberCase{"4294967295", 0xFFFFFFFFU}));

TEST(ReadRegistryLine, ReadsBytes)
{
    const RegistryLine line = ReadRegistryLine(R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: B=!A2 FF 32)");
    EXPECT_EQ(line.kind, Kind::BytesValue);
    EXPECT_EQ(line.bytes, "\xA2\xFF\x32");
    const RegistryLine empty = ReadRegistryLine(R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: B=!)");
    EXPECT_EQ(empty.kind, Kind::BytesValue);
    EXPECT_EQ(empty.bytes, "");
}

TEST(ReadRegistryLine, ReadsRemovals)
{
    const RegistryLine key = ReadRegistryLine(R"(DELETE=HKEY_LOCAL_MACHINE\SOFTWARE\Firma\Gammal)");
    EXPECT_EQ(key.kind, Kind::Delete);
    EXPECT_FALSE(key.hasValue);
    const RegistryLine value =
        ReadRegistryLine(R"(UNINSTALL=HKEY_USERS\.DEFAULT\Firma :: Sökväg=x)");
    EXPECT_EQ(value.kind, Kind::Uninstall);
    EXPECT_TRUE(value.hasValue);
    EXPECT_EQ(value.valueName, "Sökväg=x");
    EXPECT_EQ(ReadRegistryLine(R"(DELETE=HKEY_USERS\a\b :: (Standard))").valueName, "");
}

class UnreadableLine : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(UnreadableLine, TellsItsReason)
{
    const RegistryLine line = ReadRegistryLine(GetParam().first);
    EXPECT_EQ(line.kind, Kind::Unreadable);
    ASSERT_TRUE(line.reason);
    EXPECT_EQ(LanguageTexts()[*line.reason], GetParam().second);
}

constexpr const char* kNoRoot = "raden börjar inte med någon av registrets rotnycklar";
constexpr const char* kNoData = "data är varken text inom citattecken, ett tal eller binärdata";
constexpr const char* kNoBytes = "binärdata är inte hexadecimala tal med mellanslag emellan";
constexpr const char* kOfSystem = "nyckeln hör till systemet och får inte tas bort";

INSTANTIATE_TEST_SUITE_P(
    , UnreadableLine,
    testing::Values(std::pair{"något annat", kNoRoot}, std::pair{R"(HKEY_LOKAL\Firma)", kNoRoot},
                    std::pair{"HKEY_LOCAL_MACHINE", "subnyckel saknas"},
                    std::pair{R"(HKEY_LOCAL_MACHINE\)", "subnyckel saknas"},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: Namn)",
                              "likhetstecken saknas efter värdets namn"},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N=text)", kNoData},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N="öppen)", kNoData},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N=)", kNoData},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N=0x10)", kNoData},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N=4294967296)", kNoData},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N=-2147483649)", kNoData},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N=!ZZ QQ)", kNoBytes},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N=!A2FF)", kNoBytes},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N=!A)", kNoBytes},
                    std::pair{R"(HKEY_LOCAL_MACHINE\SOFTWARE\F :: N=!A2  FF)", kNoBytes},
                    std::pair{R"(DELETE=HKEY_LOCAL_MACHINE\SOFTWARE)", kOfSystem},
                    std::pair{R"(UNINSTALL=HKEY_LOCAL_MACHINE\software\microsoft)", kOfSystem}));

TEST(PlainSubKey, HasSingleBackslashesAndIsNeverCut)
{
    EXPECT_EQ(PlainSubKey("SOFTWARE\\\\Firma\\\\\\Prog"), "SOFTWARE\\Firma\\Prog");
    EXPECT_EQ(PlainSubKey("\\\\SOFTWARE\\Firma\\\\"), "SOFTWARE\\Firma");
    EXPECT_EQ(PlainSubKey("\\"), "");
    EXPECT_EQ(PlainSubKey(""), "");
    Text longKey = "SOFTWARE";
    longKey.append("\\").append(250, 'a').append("\\").append(250, 'b');
    EXPECT_EQ(PlainSubKey(longKey), longKey);
    EXPECT_EQ(ReadRegistryLine("HKEY_LOCAL_MACHINE\\" + longKey).key.subKey, longKey);
}

TEST(ReadRegistryLines, LeavesEmptyLinesOutAndKeepsTheOrder)
{
    const auto lines = ReadRegistryLines("HKEY_USERS\\b\r\n\r\n  \r\nfel\r\nHKEY_USERS\\a\r\n");
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].read.key.subKey, "b");
    EXPECT_EQ(lines[1].line, "fel");
    EXPECT_EQ(lines[1].read.kind, Kind::Unreadable);
    EXPECT_EQ(lines[2].read.key.subKey, "a");
    EXPECT_TRUE(ReadRegistryLines("").empty());
}

TEST(RootNamed, KnowsAllSixAndTheirNamesBack)
{
    for (const char* name : {"HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE",
                             "HKEY_USERS", "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA"}) {
        const auto root = RootNamed(name);
        ASSERT_TRUE(root) << name;
        EXPECT_EQ(RootName(*root), name);
        EXPECT_EQ(KeyText({*root, "a\\b"}), Text(name) + "\\a\\b");
    }
    EXPECT_EQ(RootNamed("HKEY"), std::nullopt);
}

} // namespace quillon
