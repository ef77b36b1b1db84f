#include "runtime/language_file.h"

#include "helpers/ansi_text.h"
#include "runtime/ini_text.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace quillon {

namespace {

std::string ReadSwedishFile()
{
    std::ifstream file(QUILLON_TEST_DATA "/../resources/Language/SWEDISH.LNG", std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

} // namespace

TEST(LanguageTexts, AreSwedishWithoutAFile)
{
    const LanguageTexts texts;
    EXPECT_EQ(texts[Message::Extract], "Förbereder installationen. Vänta...");
    EXPECT_EQ(texts(Message::InsertDisk, "2"), "Stoppa in diskett nr 2!");
    EXPECT_EQ(texts(Message::UninstallIcon, "Prog"), "Avinstallera Prog");
}

TEST(LanguageTexts, ComeFromTheFileWhereItHasThem)
{
    const LanguageTexts texts("[PreLoader]\r\nMsg_Extract=V\xE4nta litt\r\n[Setup]\r\nTitle=\r\n");
    EXPECT_EQ(texts[Message::Extract], "Vänta litt");
    EXPECT_EQ(texts(Message::Title, "X"), "Installation av X");
    EXPECT_EQ(texts[Message::Cancel], "Avbryt");
}

TEST(SwedishLng, IsWindows1252WithCrLfAndHoldsEveryText)
{
    const std::string bytes = ReadSwedishFile();
    ASSERT_FALSE(bytes.empty());
    for (std::size_t at = bytes.find('\n'); at != std::string::npos; at = bytes.find('\n', at + 1))
        ASSERT_TRUE(at > 0 && bytes[at - 1] == '\r') << "line end at byte " << at;
    const IniText file(bytes);
    for (int i = 0; i < int(Message::Count); ++i) {
        const MessageKey& key = KeyOf(Message(i));
        const auto value = file.Value(key.section, key.key);
        ASSERT_TRUE(value) << key.section << " " << key.key;
        EXPECT_EQ(AnsiText::FromBytes(*value), key.swedish) << key.key;
    }
}

} // namespace quillon
