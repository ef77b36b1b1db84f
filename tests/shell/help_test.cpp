#include "shell/help.h"

#include "platform/run_error.h"
#include "shell/command_table.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <algorithm>
#include <fstream>
#include <regex>
#include <set>

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

constexpr std::string_view kHelp =
    "# Arkiv\r\n\r\n## Nytt projekt {cmd101}\r\n\r\nBörjar om.\r\n"
    "# Lista\n## Ikon {cmd116 icon}\nSe [nytt](cmd101).\n\n## Tom { x }";

TEST(HelpPages, AreReadByChapterWithTheirIds)
{
    EXPECT_EQ(ReadHelpPages(kHelp),
              (std::vector<HelpPage>{
                  {{"cmd101"}, "Arkiv", "Nytt projekt", "\nBörjar om.\n"},
                  {{"cmd116", "icon"}, "Lista", "Ikon", "Se [nytt](cmd101).\n\n"},
                  {{"x"}, "Lista", "Tom", ""},
              }));
}

TEST(HelpPages, AreNoneInAnotherFile)
{
    for (const std::string_view file :
         {"", "x", "?_\x03\x01 an older kind", "## Sida utan kapitel {a}\n", "# Kapitel\n## Sida\n",
          "# Kapitel\n## Sida {}\n", "# Kapitel\ntext\n"})
        EXPECT_TRUE(ReadHelpPages(file).empty()) << file;
}

TEST(HelpPages, AreFoundByIdElseTheFirst)
{
    const auto pages = ReadHelpPages(kHelp);
    EXPECT_EQ(FindHelpPage(pages, "icon")->title, "Ikon");
    EXPECT_EQ(FindHelpPage(pages, HelpPageOf(CommandId::Icon))->title, "Ikon");
    EXPECT_EQ(FindHelpPage(pages, "cmd0")->title, "Nytt projekt");
    EXPECT_EQ(FindHelpPage({}, "icon"), nullptr);
}

TEST(HelpPages, AreFoundByAllOfTheirWords)
{
    const auto pages = ReadHelpPages(kHelp);
    EXPECT_TRUE(HelpPageHasWords(pages[0], "BÖRJAR  arkiv"));
    EXPECT_FALSE(HelpPageHasWords(pages[0], "börjar lista"));
    EXPECT_TRUE(HelpPageHasWords(pages[0], " "));
}

// The file that comes with the tool.
std::vector<HelpPage> ShippedPages()
{
    std::ifstream file(QUILLON_TEST_DATA "/../resources/QN.HLP", std::ios::binary);
    return ReadHelpPages(Text(std::istreambuf_iterator<char>(file), {}));
}

TEST(HelpPages, EachCommandHasOneWithText)
{
    const auto pages = ShippedPages();
    const auto look = [&](const Command& command) {
        const HelpPage* page = FindHelpPage(pages, HelpPageOf(command.id));
        ASSERT_TRUE(page);
        EXPECT_EQ(std::ranges::count(page->ids, HelpPageOf(command.id)), 1) << command.caption;
        EXPECT_GT(page->body.size(), 30U) << command.caption;
        // A key that the page names is the command's own.
        if (const std::size_t at = page->body.find("Tangent: "); at != Text::npos)
            EXPECT_TRUE(page->body.substr(at).starts_with(
                Text("Tangent: ") + ReplaceAll(command.keys, "Alt+Return", "Alt+Enter")))
                << command.caption;
    };
    for (const MenuRow& row : MenuBarRows())
        if (row.part == MenuPart::Entry)
            look(row.command);
    for (const Command& command : ToolbarOnlyCommands())
        look(command);
}

TEST(HelpPages, HaveIdsOfTheirOwnAndLinksThatLeadSomewhere)
{
    const auto pages = ShippedPages();
    std::set<Text> ids;
    for (const HelpPage& page : pages)
        for (const Text& id : page.ids)
            EXPECT_TRUE(ids.insert(id).second) << id;
    const std::regex link(R"(\]\(([^)]*)\))");
    std::size_t links = 0;
    for (const HelpPage& page : pages)
        for (std::sregex_iterator at(page.body.begin(), page.body.end(), link), end; at != end;
             ++at, ++links)
            EXPECT_TRUE(ids.contains((*at)[1])) << page.title << ": " << (*at)[1];
    EXPECT_GT(links, 20U);
}

// What one import does and another does not is no secret of their windows.
TEST(HelpPages, TellTheImportsApart)
{
    const auto pages = ShippedPages();
    const auto tells = [&](const Text& id, std::initializer_list<const char*> words) {
        const HelpPage* page = FindHelpPage(pages, id);
        ASSERT_TRUE(page) << id;
        for (const char* const word : words)
            EXPECT_TRUE(ContainsText(page->body, word)) << id << ": " << word;
    };
    tells("cmd201", {"`.dep`-filer följs inte"});
    tells("cmd202", {"DAO 3.5", "DAO 3.6", "ADO-data", "RDO-data", "MDAC", "Mfc42", "DEP-filer"});
    tells("cmd203", {".vbproj", ".csproj", "läggs inte till"});
}

TEST(Help, IsShownInTheSessionsWindow)
{
    Desk desk({});
    desk.memory.files.Put("C:\\PROGRAM\\QUILLON\\QN.HLP", Text(kHelp));
    std::vector<HelpPage> shown;
    CommandId command = CommandId::None;
    desk.session.helpWindow = [&](std::vector<HelpPage> pages, const HelpRequest& request) {
        shown = std::move(pages);
        command = request.command;
    };
    ShowHelp(desk.session, {CommandId::Icon});
    EXPECT_EQ(shown.size(), 3U);
    EXPECT_EQ(command, CommandId::Icon);
    EXPECT_TRUE(desk.memory.machine.started.empty());
}

TEST(Help, OfAnotherKindIsLeftToTheSystem)
{
    Desk desk({});
    desk.memory.files.Put("C:\\PROGRAM\\QUILLON\\QN.HLP", "?_\x03");
    desk.session.helpWindow = [](const auto&, const auto&) { FAIL(); };
    ShowHelp(desk.session, {CommandId::Icon});
    EXPECT_EQ(desk.memory.machine.started.size(), 1U);
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
