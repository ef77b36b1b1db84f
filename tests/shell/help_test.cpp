#include "shell/help.h"

#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon {
namespace {

using test::BoxKind;

struct Desk {
    explicit Desk(std::deque<test::ExpectedBox> boxes) : ask(std::move(boxes)) {}

    test::MemoryHost memory;
    test::ScriptedAsk ask;
    Session session = NewSession(memory.host, ask, "C:\\PROGRAM\\QUILLON");
};

TEST(Help, OpensTheFileBesideTheProgram)
{
    Desk desk({});
    ShowHelp(desk.session);
    ASSERT_EQ(desk.memory.machine.started.size(), 1U);
    EXPECT_EQ(desk.memory.machine.started[0].first, "C:\\PROGRAM\\QUILLON\\QN.HLP");
}

TEST(Help, TellsWhyThereIsNone)
{
    for (const int number : {ErrorNumber::kFileNotFound, ErrorNumber::kPathNotFound}) {
        Desk desk({{BoxKind::Critical, "Hjälp",
                    "Hjälpfilen 'C:\\Program\\Quillon\\Qn.hlp' finns inte. Den ska ligga i samma "
                    "katalog som programmet."}});
        desk.memory.machine.startFailure = number;
        ShowHelp(desk.session);
    }
    Desk desk({{BoxKind::Critical, "Hjälp",
                "Hjälpfilen 'C:\\Program\\Quillon\\Qn.hlp' kan ej öppnas. Det saknas ett program "
                "som visar hjälpfiler."}});
    desk.memory.machine.startFailure = ErrorNumber::kCannotStart;
    ShowHelp(desk.session);
}

TEST(Support, NamesVersionAndSettingsFile)
{
    Desk desk({{BoxKind::Inform, "Support"}});
    ShowSupport(desk.session);
    const Text& text = desk.ask.shown.at(0).text;
    EXPECT_NE(text.find("Tavrell Quillon 2004, 6.5.6"), Text::npos);
    EXPECT_NE(text.find("C:\\Data\\Roaming\\Quillon\\QUILLON.INI"), Text::npos);
}

TEST(Support, NamesNoSettingsFileWhereThereIsNone)
{
    Desk desk({{BoxKind::Inform, "Support"}});
    desk.memory.machine.settingsDir.clear();
    ShowSupport(desk.session);
    EXPECT_EQ(desk.ask.shown.at(0).text.find("QUILLON.INI"), Text::npos);
}

} // namespace
} // namespace quillon
