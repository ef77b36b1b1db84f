#include "runtime/texts/starter_text.h"

#include "helpers/code_page.h"
#include "helpers/utf8.h"
#include "runtime/texts/language_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace quillon {

namespace {

char16_t Ansi(unsigned char byte)
{
    return static_cast<char16_t>(CodePointOf(kWindows1252, byte));
}

/// As UTF-8; empty where the file lacks it.
Text TextOf(std::string_view file, std::string_view key = "Msg_Extract", std::size_t room = 1024)
{
    std::u16string text(room, u'?');
    if (!FindStarterText(file, key, Ansi, text.data(), room))
        return {};
    Text utf8;
    for (std::size_t i = 0; text[i] != 0; ++i) {
        char32_t point = text[i];
        if (point >= 0xD800 && point < 0xDC00)
            point = 0x10000 + ((point & 0x3FFU) << 10U) + (text[++i] & 0x3FFU);
        AppendCodePoint(utf8, point);
    }
    return utf8;
}

Text Utf16(std::string_view ascii, bool turned)
{
    Text bytes = turned ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : ascii)
        bytes += turned ? Text{'\0', c} : Text{c, '\0'};
    return bytes;
}

} // namespace

TEST(StarterText, ComesInEachEncodingThatAnEditorSaves)
{
    const Text utf8 = "[PreLoader]\r\nMsg_Extract=Förbereder…\r\n";
    EXPECT_EQ(TextOf("[PreLoader]\r\nMsg_Extract=F\xF6rbereder\x85\r\n"), "Förbereder…");
    EXPECT_EQ(TextOf(utf8), "Förbereder…");
    EXPECT_EQ(TextOf("\xEF\xBB\xBF" + utf8), "Förbereder…");
    EXPECT_EQ(TextOf("\xEF\xBB\xBF[PreLoader]\nMsg_Extract=x"), "x");
    EXPECT_EQ(TextOf("[PreLoader]\nMsg_Extract=Подготовка 𝄞"), "Подготовка 𝄞");
    EXPECT_EQ(TextOf(Utf16("[PreLoader]\nMsg_Extract=x y\n", false)), "x y");
    EXPECT_EQ(TextOf(Utf16("[PreLoader]\nMsg_Extract=x y\n", true) + "z"), "x y");
}

TEST(StarterText, IsFoundAsProfilesAreRead)
{
    const Text file =
        "Msg_Extract=before any section\n[Setup]\nMsg_Extract=another\n"
        " [ preloader ] ; remark\n;Msg_Extract=a remark\n MSG_extract =\tStop = now  \r"
        "Msg_Extract=the second does not count\nMsg_NoRuntime='%1' is missing.";
    EXPECT_EQ(TextOf(file), "Stop = now");
    EXPECT_EQ(TextOf(file, "Msg_NoRuntime"), "'%1' is missing.");
    EXPECT_EQ(TextOf(file, "Title"), "");
}

TEST(StarterText, IsNoneWhereTheFileHasNone)
{
    for (const Text& file :
         {Text(), Text("["), Text("[PreLoader]"), Text("[PreLoader]\nMsg_Extract"),
          Text("[PreLoader]\nMsg_Extract= \t\n"), Text("[PreLoader]\nMsg_Extract=a\x1B[2J"),
          Text("[PreLoader]\nMsg_Extract=") + Text(5000, 'x'), Text("\xFF\xFE"), Text("\xFE\xFF["),
          Text("[PreLoader]\nMsg_Extract=a\0b\n", 28)})
        EXPECT_EQ(TextOf(file), "");
    EXPECT_EQ(TextOf("[PreLoader]\nMsg_Extract=1234567", "Msg_Extract", 8), "1234567");
    EXPECT_EQ(TextOf("[PreLoader]\nMsg_Extract=12345678", "Msg_Extract", 8), "");
    EXPECT_EQ(TextOf("[PreLoader]\nOther=" + Text(5000, 'x') + "\nMsg_Extract=y"), "y");
}

TEST(StarterText, IsTheSameAsTheSetupsOwn)
{
    const auto folder = std::filesystem::path(QUILLON_TEST_DATA) / ".." / "resources" / "Language";
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes(std::istreambuf_iterator<char>(file), {});
        const LanguageTexts texts(bytes);
        for (const Message message : {Message::Extract, Message::NoRuntime})
            EXPECT_EQ(TextOf(bytes, KeyOf(message).key), texts[message]) << entry.path();
    }
}

} // namespace quillon
