#include "runtime/texts/language_file.h"

#include <gtest/gtest.h>

namespace quillon {

namespace {

Text Utf16(std::string_view ascii, bool turned)
{
    Text bytes = turned ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : ascii)
        bytes += turned ? Text{'\0', c} : Text{c, '\0'};
    return bytes;
}

void ExpectSwedish(const LanguageTexts& texts)
{
    for (int i = 0; i < int(Message::Count); ++i)
        EXPECT_EQ(texts[Message(i)], KeyOf(Message(i)).swedish) << i;
}

constexpr const char* kGerman = "[PreLoader]\r\nMsg_Extract=V\xE4nta litt\r\n[Setup]\r\nTitle=\r\n"
                                "Button_Cancel=Abbrechen\r\n";

} // namespace

TEST(LanguageTexts, AreSwedishWithoutAFile)
{
    const LanguageTexts texts;
    EXPECT_EQ(texts[Message::Extract], "Förbereder installationen. Vänta...");
    EXPECT_EQ(texts(Message::InsertDisk, "2"), "Sätt in diskett 2.");
    EXPECT_EQ(texts(Message::UninstallIcon, "Prog"), "Avinstallera Prog");
    ExpectSwedish(texts);
}

TEST(LanguageTexts, ComeFromTheFileWhereItHasThem)
{
    const LanguageTexts texts(kGerman);
    EXPECT_EQ(texts[Message::Extract], "Vänta litt");
    EXPECT_EQ(texts(Message::Title, "X"), "Installation av X");
    EXPECT_EQ(texts[Message::Cancel], "Abbrechen");
    EXPECT_EQ(texts[Message::Checking], "Kontrollerar installationsfilerna...");
}

TEST(LanguageTexts, AreFoundAsProfilesAreRead)
{
    const LanguageTexts texts("Button_Cancel=before any section\n"
                              "; Button_Cancel=a remark\n"
                              "  [ setup ]  ; and a remark\n"
                              " BUTTON_cancel =\tStop = now  \r"
                              "Button_Cancel=the second does not count\r\n"
                              "[Uninstall]\nTitle=Away with %1\n"
                              "[Unknown]\nTitle=Not this\n");
    EXPECT_EQ(texts[Message::Cancel], "Stop = now");
    EXPECT_EQ(texts(Message::UninstallTitle, "X"), "Away with X");
    EXPECT_EQ(texts[Message::TestTitle], "Test av %1");
}

TEST(LanguageTexts, PutWhatIsInsertedInItsPlaceOnce)
{
    LanguageTexts texts;
    texts.Set(Message::LogSkips, "100% %2 before %1 and %3 %");
    EXPECT_EQ(texts(Message::LogSkips, "C:\\%2", "%1"), "100% %1 before C:\\%2 and %3 %");
    EXPECT_EQ(texts(Message::LogSkips, "a"), "100%  before a and %3 %");
    EXPECT_EQ(texts(Reason{Message::PackageFilesDiffer, "A", "B"}), "A och B hör inte ihop");
}

struct EncodingCase {
    const char* name;
    Text bytes;
    Text cancel;
};

TEST(LanguageTexts, ComeInEachEncodingThatAnEditorSaves)
{
    const Text ansi = "[Setup]\r\nButton_Cancel=Schlie\xDF"
                      "en\r\n";
    const Text utf8 = "[Setup]\r\nButton_Cancel=Schließen\r\n";
    Text letters = Utf16("[Setup]\r\nButton_Cancel=Schlie", false);
    letters += Text("\xDF\0n\0", 4);
    const EncodingCase cases[] = {
        {"Windows-1252", ansi, "Schließen"},
        {"UTF-8", utf8, "Schließen"},
        {"UTF-8 with a mark", "\xEF\xBB\xBF" + utf8, "Schließen"},
        {"UTF-8 of letters that no project can hold", "[Setup]\nButton_Cancel=Отмена", "Отмена"},
        {"UTF-16", letters, "Schließn"},
        {"UTF-16 with the bytes turned", Utf16("[Setup]\nButton_Cancel=Cancel\n", true), "Cancel"},
        {"UTF-16 with half a character", Utf16("[Setup]\nButton_Cancel=Cancel", false) + "x",
         "Cancel"},
        {"UTF-16 without a mark", Utf16("[Setup]\r\nButton_Cancel=Cancel\r\n", false).substr(2),
         "Avbryt"},
    };
    for (const EncodingCase& one : cases)
        EXPECT_EQ(LanguageTexts(one.bytes)[Message::Cancel], one.cancel) << one.name;
}

TEST(LanguageTexts, StaySwedishWhereAFileIsNoLanguageFile)
{
    const Text everyByte = [] {
        Text bytes;
        for (int i = 0; i < 4096; ++i)
            bytes += static_cast<char>(i * 7 % 256);
        return bytes;
    }();
    const Text cases[] = {"",
                          "\r\n\r\n",
                          "[",
                          "[]",
                          "=",
                          "[Setup",
                          "[Setup]",
                          "[Setup]\r\nButton_Cancel",
                          "[Setup]\r\nButton_Cancel=",
                          "[Setup]\r\nButton_Cancel= \t ",
                          "[Setup]\r\n=Text",
                          "[Missing]\r\nButton_Cancel=Text",
                          Text("[Setup]\nButton_Cancel=a\0b\n", 25),
                          "[Setup]\nButton_Cancel=a\x1B[2Jb\n",
                          "\xEF\xBB\xBF",
                          "\xFF\xFE",
                          "\xFF\xFE[",
                          "\xFE\xFF",
                          everyByte};
    for (const Text& bytes : cases)
        ExpectSwedish(LanguageTexts(bytes));
}

TEST(LanguageTexts, TakeWhatACutFileStillHas)
{
    const Text whole = "[Setup]\r\nTitle=Setup of %1\r\nButton_Cancel=Cancel\r\n";
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const LanguageTexts texts(std::string_view(whole).substr(0, length));
        EXPECT_FALSE(texts[Message::Title].empty());
        EXPECT_FALSE(texts[Message::Cancel].empty());
        EXPECT_EQ(texts[Message::Copying], "Kopierar filer...");
    }
    EXPECT_EQ(LanguageTexts(whole)[Message::Cancel], "Cancel");
}

TEST(LanguageTexts, AreFoundInALargeFileAndNeverLarge)
{
    constexpr std::size_t kTenMegabytes = 10 * 1024 * 1024;
    Text large = "[Setup]\r\nTitle=" + Text(kTenMegabytes, 'x') +
                 "\r\nMsg_Copying=Copying\r\nMsg_Settings=" + Text(2001, 'x') +
                 "\r\nButton_Cancel=" + Text(2000, 'x') + "\r\n";
    for (int i = 0; large.size() < 2 * kTenMegabytes; ++i)
        large += "Other" + std::to_string(i) + "=Text\r\n";
    large += "Msg_Undoing=Undoing\r\n";
    const LanguageTexts texts(large);
    EXPECT_EQ(texts[Message::Title], "Installation av %1");
    EXPECT_EQ(texts[Message::Copying], "Copying");
    EXPECT_EQ(texts[Message::Settings], "Gör inställningar...");
    EXPECT_EQ(texts[Message::Cancel].size(), 2000U);
    EXPECT_EQ(texts[Message::Undoing], "Undoing");
}

} // namespace quillon
