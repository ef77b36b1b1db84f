#include "runtime/journal/recorded_text.h"

#include "platform/whole_file.h"
#include "runtime/journal/install_journal.h"
#include "runtime/support/setup_fixture.h"
#include "runtime/texts/messages.h"
#include "runtime/texts/starter_messages.h"

namespace quillon {
namespace {

// Empty where the record has none.
Text TextOf(std::string_view record, std::string_view key, std::size_t room = 64)
{
    Text text(room, '?');
    return FindRecordedText(record, key, text.data(), room) ? Text(text.c_str()) : Text();
}

TEST(RecordedText, IsFoundByItsKey)
{
    const Text record = "Quillon installationslogg 2\r\nPRODUCT\tExempel\r\n"
                        "MESSAGE\tErr\tEtt fel\r\nMESSAGE\tErr_NoLog\tFilen '%251'%09är%0D%0Aborta."
                        "\r\nMESSAGE\tErr_NoLog\tden andra\r\n";
    EXPECT_EQ(TextOf(record, "Err_NoLog"), "Filen '%1'\tär\r\nborta.");
    EXPECT_EQ(TextOf(record, "Err"), "Ett fel");
    EXPECT_EQ(TextOf("MESSAGE\tA\tutan radslut", "A"), "utan radslut");
    EXPECT_EQ(TextOf("MESSAGE\tA\ten%0arad", "A"), "en\nrad") << "digits of either case";
}

TEST(RecordedText, IsNoneWhereTheRecordHasNone)
{
    for (const char* record :
         {"", "\n", "MESSAGE", "MESSAGE\tA", "MESSAGE\tA\t", "MESSAGE\tAB\tx", "MESSAGES\tA\tx",
          "MESSAG\tA\tx", "TEXT\tA\tx", "MESSAGE\tA\tfel %ZZ tecken"})
        EXPECT_EQ(TextOf(record, "A"), "") << record;
}

TEST(RecordedText, HasToFit)
{
    EXPECT_EQ(TextOf("MESSAGE\tA\t12345", "A", 6), "12345");
    EXPECT_EQ(TextOf("MESSAGE\tA\t123456", "A", 6), "");
}

class RecordedTextOfAProduct : public test::SetupFixture {};

TEST_F(RecordedTextOfAProduct, IsWhatTheInstallationPutThere)
{
    AddFile("prog.exe", "%DESTDIR", "program");
    package.texts.Set(Message::UninstallNoJournal, "The file '%1' is missing.");
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(TextOf(memory.files.Get("C:\\Program\\Exempel\\QNXUNIN.LOG"),
                     StarterMessages::kNoUninstaller.key),
              "The file '%1' is missing.");
}

} // namespace
} // namespace quillon
