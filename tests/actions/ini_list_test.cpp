#include "actions/ini_list.h"

#include "helpers/ansi_text.h"
#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <cstring>

namespace quillon::test {
namespace {

TEST(IniFileToAppend, WritesTheNameInCapitalsWithItsExtension)
{
    struct Row {
        const char* name;
        const char* header;
    };
    for (const auto& [name, header] :
         {Row{"win", "-- WIN.INI --"}, Row{"app.ini", "-- APP.INI --"},
          Row{"my.ini.bak", "-- MY.INI.BAK --"}, Row{"App.Ini", "-- APP.INI --"},
          Row{"åäö", "-- ÅÄÖ.INI --"}, Row{"a.txt", "-- A.TXT.INI --"}})
        EXPECT_EQ(IniFileToAppend("", name), header);
}

TEST(IniFileToAppend, LeavesAnEmptyLineBehindTheFileBefore)
{
    EXPECT_EQ(IniFileToAppend("-- WIN.INI --", "app"), "\r\n\r\n-- APP.INI --");
}

TEST(IniSectionToAppend, StandsOnALineOfItsOwn)
{
    EXPECT_EQ(IniSectionToAppend("", "Settings"), "[Settings]\r\n");
    EXPECT_EQ(IniSectionToAppend("-- WIN.INI --", "Settings"), "\r\n[Settings]\r\n");
}

TEST(IniValueToAppend, EndsItsLine)
{
    EXPECT_EQ(IniValueToAppend("", "Path", "%DESTDIR"), "Path=%DESTDIR\r\n");
    EXPECT_EQ(IniValueToAppend("", "Name", ""), "Name=\r\n");
    EXPECT_EQ(IniValueToAppend("[A]\r\n", "a=b", "c=d"), "a=b=c=d\r\n");
}

// Without a line break before it, the value would go to another file on the end user's machine.
TEST(IniValueToAppend, BeginsALineWhereTheListsLastOneHasNoEnd)
{
    EXPECT_EQ(IniValueToAppend("-- WIN.INI --", "a", "1"), "\r\na=1\r\n");
    EXPECT_EQ(IniValueToAppend("[A]\r\nPath=%DESTDIR", "Name2", "Value2"), "\r\nName2=Value2\r\n");
    EXPECT_EQ(IniValueToAppend("[A]\n", "a", "1"), "\r\na=1\r\n");
}

class OpenINIFileIntoListTest : public testing::Test {
protected:
    Text Opened(std::string bytes, const Text& list = "")
    {
        files.Put("C:\\Data\\min.ini", std::move(bytes));
        ask.choices.push_back({{"C:\\Data\\min.ini"}});
        return OpenINIFileIntoList(list, files, ask);
    }

    MemoryFiles files;
    ScriptedAsk ask;
};

TEST_F(OpenINIFileIntoListTest, AsksForAnIniFile)
{
    ask.choices = {{}};
    EXPECT_EQ(OpenINIFileIntoList("x", files, ask), "");
    ASSERT_EQ(ask.questions.size(), 1U);
    EXPECT_EQ(ask.questions[0].title, "Öppna INI-fil");
    EXPECT_EQ(ask.questions[0].fileName, "*.ini");
    EXPECT_EQ(ask.questions[0].filter, "INI-filer (*.ini)|*.ini");
}

TEST_F(OpenINIFileIntoListTest, TakesEachLineExactlyAsItStands)
{
    EXPECT_EQ(Opened("[A]\r\n; not\r\n\r\n  b = c  \r\n"),
              "-- MIN.INI --\r\n[A]\r\n; not\r\n\r\n  b = c  ");
    EXPECT_EQ(Opened("[A]\r\nb=c"), "-- MIN.INI --\r\n[A]\r\nb=c");
    EXPECT_EQ(Opened("\r\n"), "-- MIN.INI --\r\n");
    EXPECT_EQ(Opened("\xC5=\x80"), "-- MIN.INI --\r\nÅ=€");
}

TEST_F(OpenINIFileIntoListTest, KnowsTheLineEndsOfOtherSystems)
{
    EXPECT_EQ(Opened("a\nb\n\nc"), "-- MIN.INI --\r\na\r\nb\r\n\r\nc");
    EXPECT_EQ(Opened("a\rb\r"), "-- MIN.INI --\r\na\r\nb");
}

TEST_F(OpenINIFileIntoListTest, AddsJustTheHeadOfAnEmptyFile)
{
    EXPECT_EQ(Opened(""), "-- MIN.INI --");
}

TEST_F(OpenINIFileIntoListTest, LeavesAnEmptyLineBehindTheFileBefore)
{
    EXPECT_EQ(Opened("a", "x"), "\r\n\r\n-- MIN.INI --\r\na");
}

TEST_F(OpenINIFileIntoListTest, TellsAFileThatCannotBeRead)
{
    files.Put("C:\\Data\\min.ini", "a");
    files.At("C:\\Data\\min.ini").unreadable = true;
    ask.Expect({BoxKind::Critical, "Fel", "Kan ej öppna INI-fil!"});
    ask.choices = {{{"C:\\Data\\min.ini"}}};
    EXPECT_EQ(OpenINIFileIntoList("", files, ask), "-- MIN.INI --");
}

TEST_F(OpenINIFileIntoListTest, TellsAFileThatIsNoText)
{
    ask.Expect({BoxKind::Critical, "Fel", "Kan ej öppna INI-fil!"});
    EXPECT_EQ(Opened(std::string("a\0b\r\n", 5)), "-- MIN.INI --");
}

TEST_F(OpenINIFileIntoListTest, KeepsTheLinesThatWereReadBeforeAFailure)
{
    class BreakingFile : public InputFile {
    public:
        std::size_t Read(std::span<std::byte> buffer) override
        {
            if (std::exchange(isRead_, true))
                throw RunError(ErrorNumber::kDeviceIo);
            std::memcpy(buffer.data(), "a\r\nb\r\ncut", 9);
            return 9;
        }
        void Seek(std::uint64_t) override {}
        std::uint64_t Size() const override { return 100; }

    private:
        bool isRead_ = false;
    };
    class BreakingFiles : public MemoryFiles {
        std::unique_ptr<InputFile> OpenInput(const Text&) const override
        {
            return std::make_unique<BreakingFile>();
        }
    };
    ask.Expect({BoxKind::Critical, "Fel", "Kan ej öppna INI-fil!"});
    ask.choices = {{{"C:\\min.ini"}}};
    EXPECT_EQ(OpenINIFileIntoList("", BreakingFiles(), ask), "-- MIN.INI --\r\na\r\nb");
}

TEST_F(OpenINIFileIntoListTest, RefusesAFileThatTheListHasNoRoomFor)
{
    const Text header = "-- MIN.INI --\r\n";
    const std::size_t room = kMaxIniListLength - header.size();
    EXPECT_EQ(Opened(std::string(room, 'x')), header + Text(room, 'x'));
    ask.Expect({BoxKind::Critical, "Fel",
                "Listan över INI-filer kan innehålla högst 32767 tecken! Ingenting har lagts "
                "till."});
    EXPECT_EQ(Opened(std::string(room + 1, 'x')), "");
    ask.Expect({BoxKind::Critical, "Fel"});
    EXPECT_EQ(Opened(std::string(1000000, 'x')), "");
}

TEST_F(OpenINIFileIntoListTest, RefusesTenMegabytes)
{
    std::string lines;
    while (lines.size() < 10'000'000)
        lines += "Namn=V\xE4rde\r\n";
    ask.Expect({BoxKind::Critical, "Fel"});
    EXPECT_EQ(Opened(lines, "x"), "");
}

TEST_F(OpenINIFileIntoListTest, TakesEveryByteOfALine)
{
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '\r' && byte != '\n')
            bytes += static_cast<char>(byte);
    const Text lines = Opened(bytes);
    EXPECT_EQ(lines, "-- MIN.INI --\r\n" + AnsiText::FromBytes(bytes));
    EXPECT_TRUE(AnsiText::Holds(lines));
}

TEST_F(OpenINIFileIntoListTest, RefusesANameThatNoProjectCanHold)
{
    ask.Expect({BoxKind::Critical, "Ogiltiga tecken hittade"});
    ask.choices = {{{"C:\\日.ini"}}};
    EXPECT_EQ(OpenINIFileIntoList("", files, ask), "");
}

TEST(HasRoomInIniList, CountsBytesOnFile)
{
    ScriptedAsk ask{{{BoxKind::Critical, "Fel"}}};
    Text list;
    for (int i = 0; i < kMaxIniListLength; ++i)
        list += "ö";
    EXPECT_TRUE(HasRoomInIniList(list, "", ask));
    EXPECT_FALSE(HasRoomInIniList(list, "ö", ask));
}

} // namespace
} // namespace quillon::test
