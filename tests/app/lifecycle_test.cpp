// The life of projects and of the window, driven by the commands' ids.
#include "app/MainForm.h"
#include "app/command_line.h"
#include "app/window/window_place.h"
#include "platform/run_error.h"
#include "shell/command_table.h"
#include "shell/forms/DlgCreateFoldersAtMyDoc.h"
#include "shell/lifecycle.h"
#include "shell/settings_file.h"
#include "shell/start.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

constexpr const char* kA = "C:\\P\\a.qnp";
constexpr const char* kB = "C:\\P\\b.qnp";
constexpr const char* kOffered = "C:\\Mina dokument\\Quillon\\Mina projekt";

ExpectedBox SaveQuestion(Answer answer)
{
    return {BoxKind::YesNoCancel, "Tavrell Quillon 2004",
            "Vissa inställningar har ändrats. Vill du spara dessa?", answer};
}

/// A machine with two projects, a user with prepared answers, and the window.
class Desk {
public:
    explicit Desk(std::deque<ExpectedBox> boxes = {}, std::deque<ScriptedAsk::Choice> choices = {})
        : ask(std::move(boxes))
    {
        ask.choices = std::move(choices);
        machine.files.Put("C:\\Quillon\\Res\\SetupDef.bmp", "BM");
        machine.files.PutFolder("C:\\P");
        for (const char* file : {kA, kB})
            Put(file);
        StartSession(session);
    }

    void Put(const Text& file)
    {
        ScriptedAsk nobody;
        Session other = NewSession(machine.host, nobody, "C:\\Quillon");
        other.state.ProjectFileName = file;
        other.project.ProjectName.ProjectName = file;
        SaveProject(other);
    }

    /// Shows the window as main() does and waits until its first activation is over. The offer of
    /// folders, where it comes, is answered Yes.
    void Activate(const Text& commandLine = "")
    {
        bool isActive = false;
        form.onFirstActivation = [&] {
            ActivateForTheFirstTime(session, form, commandLine, [&] {
                titleAtOffer = Title();
                OnNextDialog([](QDialog& offer) { Click(offer, "CmdYes"); });
                OfferProjectsFolder(session, "", &form);
            });
            isActive = true;
        };
        form.show();
        EXPECT_TRUE(QTest::qWaitFor([&] { return isActive; }));
    }

    void Change()
    {
        session.project.ProjectName.ProjectName = "Ändrat";
        session.state.ProjectIsDirty = kOn;
    }

    Text Title() const { return FromQt(form.windowTitle()); }
    const Text& Name() const { return session.project.ProjectName.ProjectName; }
    QAction& Entry(CommandId id)
    {
        return Find<QAction>(QString("cmd%1").arg(static_cast<int>(id)));
    }

    template <class Object>
    Object& Find(const QString& name)
    {
        auto* found = form.findChild<Object*>(name);
        if (!found)
            qFatal("there is no %s", qPrintable(name));
        return *found;
    }

    Text titleAtOffer;
    MemoryHost machine;
    ScriptedAsk ask;
    Session session = NewSession(machine.host, ask, "C:\\Quillon");
    MainForm form{session};
};

TEST(LifecycleByCommand, BeginsANewProjectOnTheFirstTab)
{
    Desk context({SaveQuestion(Answer::No)});
    context.session.state.ProjectFileName = kA;
    context.Change();
    context.form.SelectTab(Tab::Dialogs);
    context.form.RunCommand(CommandId::NewProject);
    EXPECT_EQ(context.Title(), "Tavrell Quillon 2004 - [noname]");
    EXPECT_EQ(context.Name(), "");
    EXPECT_EQ(context.form.SelectedTab(), Tab::Files);
    EXPECT_EQ(context.session.state.ProjectIsDirty, kOff);
}

TEST(LifecycleByCommand, OpensAProject)
{
    Desk context({}, {{{kA}}});
    context.form.SelectTab(Tab::Design);
    context.form.RunCommand(CommandId::OpenProject);
    EXPECT_EQ(context.Title(), "Tavrell Quillon 2004 - [a.qnp]");
    EXPECT_EQ(context.Name(), kA);
    EXPECT_EQ(context.form.SelectedTab(), Tab::Design);
    EXPECT_EQ(context.Entry(CommandId::RecentFile1).text(), "a.qnp");
}

TEST(LifecycleByCommand, SavesAndSavesUnderAnotherName)
{
    Desk context({}, {{{"C:\\P\\c.qnp"}}, {{"C:\\P\\d.qnp"}}});
    context.Change();
    context.form.RunCommand(CommandId::SaveProject);
    EXPECT_EQ(context.Title(), "Tavrell Quillon 2004 - [c.qnp]");
    EXPECT_EQ(context.session.state.ProjectIsDirty, kOff);
    context.form.RunCommand(CommandId::SaveProject);
    context.form.RunCommand(CommandId::SaveProjectAs);
    EXPECT_EQ(context.Title(), "Tavrell Quillon 2004 - [d.qnp]");
    EXPECT_TRUE(context.machine.files.FileExists("C:\\P\\d.qnp"));
    EXPECT_EQ(context.Entry(CommandId::RecentFile1).text(), "d.qnp");
    EXPECT_EQ(context.Entry(CommandId::RecentFile2).text(), "c.qnp");
}

TEST(LifecycleByCommand, TellsWhyAProjectCannotBeSaved)
{
    Desk context({{BoxKind::Critical, "Fel", "Disken är full: 'C:\\P\\a.qnp'."}});
    context.session.state.ProjectFileName = kA;
    context.Change();
    context.machine.files.FailFromWrite(1, ErrorNumber::kDiskFull);
    context.form.RunCommand(CommandId::SaveProject);
    EXPECT_EQ(context.session.state.ProjectIsDirty, kOn);
}

TEST(LifecycleByCommand, OpensEachRecentFileByItsOwnCommand)
{
    Desk context;
    const std::array<Text, 4> files{"C:\\P\\1.qnp", "C:\\P\\2.qnp", "C:\\P\\3.qnp", "C:\\P\\4.qnp"};
    for (const Text& file : files)
        context.Put(file);
    for (std::size_t slot = 0; slot < files.size(); ++slot) {
        context.session.RecentFiles = files;
        context.form.RunCommand(kRecentFiles[slot]);
        EXPECT_EQ(context.Name(), files[slot]);
        EXPECT_EQ(context.session.RecentFiles[0], files[slot]);
    }
    context.session.RecentFiles = {kA};
    context.form.RunCommand(CommandId::RecentFile3);
    EXPECT_EQ(context.Name(), files[3]) << "a free slot does nothing";
}

TEST(LifecycleByCommand, KeepsTheEntryOfAProjectThatVanished)
{
    Desk context({{BoxKind::Critical, "Fel", "Kaj ej öppna 'C:\\P\\borta.qnp'!"}});
    context.session.RecentFiles = {"C:\\P\\borta.qnp"};
    context.form.ShowRecentFiles();
    context.form.RunCommand(CommandId::RecentFile1);
    EXPECT_EQ(context.Title(), "Tavrell Quillon 2004 - [noname]");
    EXPECT_EQ(context.Entry(CommandId::RecentFile1).text(), "borta.qnp");
}

// Kept: a refused file is in the title and among the recent files.
TEST(LifecycleByCommand, NamesARefusedFileInItsTitle)
{
    Desk context({{BoxKind::Warn, "Fel filformat"}}, {{{"C:\\P\\x.txt"}}});
    context.machine.files.Put("C:\\P\\x.txt", "no project");
    context.form.RunCommand(CommandId::OpenProject);
    EXPECT_EQ(context.Title(), "Tavrell Quillon 2004 - [x.txt]");
    EXPECT_EQ(context.Entry(CommandId::RecentFile1).text(), "x.txt");
}

TEST(RecentFilesMenu, ShowsTheMarkOfAFreeSlotOnANewMachineAndFillsFromTheTop)
{
    Desk context;
    EXPECT_EQ(context.Entry(CommandId::RecentFile1).text(), "(tom)");
    EXPECT_TRUE(context.Entry(CommandId::RecentFile1).isVisible());
    for (const CommandId id :
         {CommandId::RecentFile2, CommandId::RecentFile3, CommandId::RecentFile4})
        EXPECT_FALSE(context.Entry(id).isVisible()) << static_cast<int>(id);
    context.session.RecentFiles = {"C:\\P\\R&D.qnp", kB};
    context.form.ShowRecentFiles();
    EXPECT_EQ(context.Entry(CommandId::RecentFile1).text(), "R&&D.qnp");
    EXPECT_EQ(context.Entry(CommandId::RecentFile2).text(), "b.qnp");
    EXPECT_FALSE(context.Entry(CommandId::RecentFile3).isVisible());
    // A file that others have written may have a gap.
    context.session.RecentFiles = {"", kB};
    context.form.ShowRecentFiles();
    EXPECT_FALSE(context.Entry(CommandId::RecentFile1).isVisible());
    EXPECT_TRUE(context.Entry(CommandId::RecentFile2).isVisible());
}

struct Closing {
    const char* name;
    Answer answer;
    bool isNamed;
    std::deque<ScriptedAsk::Choice> choices;
    bool closes;
};

class CloseWindow : public testing::TestWithParam<Closing> {};

TEST_P(CloseWindow, AsksAboutChangesAndWritesTheSettingsWhereItCloses)
{
    const Closing& closing = GetParam();
    Desk context({SaveQuestion(closing.answer)}, closing.choices);
    context.form.show();
    if (closing.isNamed)
        context.session.state.ProjectFileName = kA;
    context.Change();
    context.form.RunCommand(CommandId::Exit);
    EXPECT_EQ(context.form.isVisible(), !closing.closes);
    EXPECT_EQ(context.session.state.ProjectIsDirty != kOff,
              !closing.closes || closing.answer == Answer::No);
    EXPECT_EQ(context.machine.files.FileExists(SettingsFile(context.machine.machine)),
              closing.closes);
}

INSTANTIATE_TEST_SUITE_P(
    All, CloseWindow,
    testing::Values(Closing{"Yes", Answer::Yes, true, {}, true},
                    Closing{"YesAndAName", Answer::Yes, false, {{{"C:\\P\\n.qnp"}}}, true},
                    Closing{"YesAndNoName", Answer::Yes, false, {{}}, false},
                    Closing{"No", Answer::No, true, {}, true},
                    Closing{"Cancel", Answer::Cancel, true, {}, false}),
    [](const auto& one) { return one.param.name; });

TEST(CloseWindowUnchanged, LeavesSizeAndRecentFilesInTheSettings)
{
    Desk context;
    context.form.resize(1000, 700);
    context.form.show();
    context.session.RecentFiles = {kB};
    context.form.close();
    Session next = NewSession(context.machine.host, context.ask, "C:\\Quillon");
    StartSession(next);
    EXPECT_EQ(next.RecentFiles[0], kB);
    EXPECT_EQ(next.Settings.WindowPlace.Width, 1000);
    EXPECT_EQ(next.Settings.WindowPlace.Height, 700);
    EXPECT_EQ(next.Settings.WindowPlace.Maximized, kOff);
}

TEST(WindowPlaceTest, ComesBackAsItWasLeftAndFitsTheScreen)
{
    QMainWindow window;
    RestoreWindowPlace(window, {.Width = 320, .Height = 240});
    EXPECT_EQ(window.size(), QSize(320, 240));
    EXPECT_FALSE(window.isMaximized());

    QMainWindow large;
    RestoreWindowPlace(large, {.Width = 16000, .Height = 16000, .Maximized = kOn});
    const QSize screen = large.screen()->availableSize();
    EXPECT_TRUE(large.isMaximized());
    EXPECT_LE(large.width(), screen.width());

    QMainWindow first;
    RestoreWindowPlace(first, {});
    EXPECT_GT(first.width(), 300);
    EXPECT_LE(first.height(), screen.height());

    WindowPlace kept;
    large.show();
    KeepWindowPlace(large, kept);
    EXPECT_EQ(kept.Maximized, kOn);
}

TEST(WindowPlaceTest, IsKeptOverAStayOnASmallerScreen)
{
    const WindowPlace remembered{.Width = 16000, .Height = 500};
    QMainWindow window;
    RestoreWindowPlace(window, remembered);
    window.show();
    EXPECT_LT(window.width(), window.screen()->size().width()) << "with its frame";
    WindowPlace kept = remembered;
    KeepWindowPlace(window, kept);
    EXPECT_EQ(kept.Width, 16000) << "the screen has no room for it, which is no wish";
    EXPECT_EQ(kept.Height, 500);
    window.resize(400, 300);
    KeepWindowPlace(window, kept);
    EXPECT_EQ(kept.Width, 400) << "smaller than the screen: the user wants it so";
    EXPECT_EQ(kept.Height, 300);
}

TEST(FirstActivation, OffersFoldersOnceAndBehindTheProject)
{
    Desk context;
    context.Activate(kA);
    EXPECT_EQ(context.titleAtOffer, "Tavrell Quillon 2004 - [a.qnp]");
    EXPECT_TRUE(context.machine.files.DirExists(kOffered));
    EXPECT_EQ(context.session.ProjectsFolder, kOffered);
    EXPECT_FALSE(context.form.onFirstActivation) << "a later activation does nothing";
    context.form.close();

    Session next = NewSession(context.machine.host, context.ask, "C:\\Quillon");
    StartSession(next);
    EXPECT_EQ(next.Settings.WindowOptions.MyDocFolderAutoCreateDone, kOn);
    EXPECT_EQ(next.ProjectsFolder, kOffered);
}

TEST(FirstActivation, OpensTheProjectOfTheCommandLine)
{
    Desk context;
    context.session.Settings.WindowOptions.MyDocFolderAutoCreateDone = kOn;
    context.Activate(kA);
    EXPECT_EQ(context.titleAtOffer, "") << "the offer was answered in another run";
    EXPECT_EQ(context.Title(), "Tavrell Quillon 2004 - [a.qnp]");
    EXPECT_EQ(context.Name(), kA);
    EXPECT_EQ(context.session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(context.Entry(CommandId::RecentFile1).text(), "a.qnp");
}

TEST(FirstActivation, GoesOnUnderTheNameOfAProjectThatIsNotThere)
{
    Desk context({{BoxKind::Warn, "Fel filformat"}});
    context.session.Settings.WindowOptions.MyDocFolderAutoCreateDone = kOn;
    context.Activate("C:\\P\\borta.qnp");
    EXPECT_EQ(context.Title(), "Tavrell Quillon 2004 - [borta.qnp]");
}

TEST(FirstActivation, HidesTabsAndTheirEntries)
{
    Desk context;
    context.session.Settings.WindowOptions.MyDocFolderAutoCreateDone = kOn;
    context.session.Settings.HideTabs = {kOn, kOff, kOn};
    context.Activate();
    const auto& tabs = context.Find<QTabWidget>("MainTab");
    EXPECT_EQ(tabs.count(), 4);
    EXPECT_FALSE(context.Entry(CommandId::RegistryTab).isVisible());
    EXPECT_TRUE(context.Entry(CommandId::IniFilesTab).isVisible());
    EXPECT_FALSE(context.Entry(CommandId::ComponentsTab).isVisible());
    EXPECT_EQ(context.form.SelectedTab(), Tab::Files);
    context.form.RunCommand(CommandId::RegistryTab);
    EXPECT_EQ(context.form.SelectedTab(), Tab::Files) << "a hidden tab can't be reached";
}

TEST(OptionsByCommand, HideATabAtOnce)
{
    Desk context;
    context.form.show();
    OnNextDialog([](QDialog& form) {
        test::Find<QCheckBox>(form, "cHideINIFiles").setChecked(true);
        Click(form, "cmdOK");
    });
    context.form.RunCommand(CommandId::EditorOptions);
    EXPECT_EQ(context.Find<QTabWidget>("MainTab").count(), 5);
    EXPECT_EQ(context.Find<QTabWidget>("MainTab").tabText(4), "  Komponenter  ");
    EXPECT_FALSE(context.Entry(CommandId::IniFilesTab).isVisible());
    EXPECT_EQ(context.session.state.ProjectIsDirty, kOff);
}

TEST(ShellByCommand, ShowsItsDialogs)
{
    Desk context;
    context.form.show();
    const std::pair<CommandId, const char*> dialogs[] = {
        {CommandId::VersionInfo, "DlgVersionInfo"},
        {CommandId::EditorOptions, "DlgEditorOptions"},
        {CommandId::About, "DlgAbout"}};
    for (const auto& [id, name] : dialogs) {
        Text shown;
        OnNextDialog([&](QDialog& form) { shown = FromQt(form.objectName()); });
        context.form.RunCommand(id);
        EXPECT_EQ(shown, name);
    }
}

TEST(ShellByCommand, OpensTheHelpFileAndTellsOfSupport)
{
    Desk context({{BoxKind::Inform, "Support"}});
    for (const CommandId id :
         {CommandId::HelpContents, CommandId::HelpSearch, CommandId::HelpOnHelp, CommandId::Help})
        context.form.RunCommand(id);
    ASSERT_EQ(context.machine.machine.started.size(), 4U);
    EXPECT_EQ(context.machine.machine.started[3].first, "C:\\Quillon\\QN.HLP");
    context.form.RunCommand(CommandId::Support);
}

struct Line {
    std::vector<const char*> words;
    std::optional<Text> project;
};

TEST(CommandLine, IsThePathOfOneProject)
{
    const HostPaths paths{.toHost = {}, .toWindows = [](const std::string& path) {
                              return path.find('\\') == std::string::npos
                                         ? std::optional(Text("Z:\\(" + path + ")"))
                                         : std::nullopt;
                          }};
    const Line lines[] = {
        {{}, ""},
        {{"C:\\P\\a.qnp"}, "C:\\P\\a.qnp"},
        {{"c:/P/a.qnp"}, "c:/P/a.qnp"},
        {{"\\\\server\\p\\a.qnp"}, "\\\\server\\p\\a.qnp"},
        {{"C:\\Mina", "projekt\\a.qnp"}, "C:\\Mina projekt\\a.qnp"},
        {{"/home/x/p.qnp"}, "Z:\\(/home/x/p.qnp)"},
        {{"mitt", "projekt.qnp"}, "Z:\\(mitt projekt.qnp)"},
        {{"-style"}, "Z:\\(-style)"},
        {{"/home/a\\b.qnp"}, std::nullopt},
    };
    for (const Line& line : lines) {
        std::vector<char*> words;
        for (const char* word : line.words)
            words.push_back(const_cast<char*>(word));
        EXPECT_EQ(ProjectOfCommandLine(words, paths), line.project);
    }
}

} // namespace
} // namespace quillon::test
