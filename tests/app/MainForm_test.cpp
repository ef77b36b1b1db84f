#include "app/MainForm.h"

#include "shell/command_table.h"
#include "shell/lifecycle.h"
#include "support/window_test.h"

#include <set>

namespace quillon::test {
namespace {

using MainFormTest = WindowTest;

QAction& ActionOf(QWidget& form, CommandId id)
{
    return Find<QAction>(form, ("cmd" + std::to_string(static_cast<int>(id))).c_str());
}

TEST_F(MainFormTest, NamesTheProjectInItsTitle)
{
    MainForm form(session);
    EXPECT_EQ(form.windowTitle(), "Tavrell Quillon 2004 - [noname]");
    session.state.ProjectFileName = "C:\\Projekt\\prov.qnp";
    form.ShowTitle();
    EXPECT_EQ(form.windowTitle(), "Tavrell Quillon 2004 - [prov.qnp]");
}

TEST_F(MainFormTest, SelectsEachTabByItsCommand)
{
    MainForm form(session);
    for (int tab = kTabCount - 1; tab >= 0; --tab) {
        form.RunCommand(CommandOf(static_cast<Tab>(tab)));
        EXPECT_EQ(static_cast<int>(form.SelectedTab()), tab);
    }
}

TEST_F(MainFormTest, ShowsTheKeysOfItsCommandsInTheMenus)
{
    MainForm form(session);
    for (const MenuRow& row : MenuBarRows())
        if (row.part == MenuPart::Entry) {
            const QAction& action = ActionOf(form, row.command.id);
            EXPECT_EQ(FromQt(action.shortcut().toString(QKeySequence::PortableText)),
                      row.command.keys)
                << row.command.caption;
        }
}

TEST_F(MainFormTest, SelectsEachTabByItsKeys)
{
    MainForm form(session);
    ShowActive(form);
    for (int tab = kTabCount - 1; tab >= 0; --tab) {
        QTest::keyClick(&form, static_cast<Qt::Key>(Qt::Key_1 + tab), Qt::ControlModifier);
        EXPECT_EQ(static_cast<int>(form.SelectedTab()), tab);
    }
    session.Settings.HideTabs.HideTabRegistry = kOn;
    form.ShowSettings();
    QTest::keyClick(&form, Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(form.SelectedTab(), Tab::Files) << "a hidden tab can't be reached";
}

TEST_F(MainFormTest, ClosesAndSavesUnderANameByItsKeys)
{
    MainForm form(session);
    ShowActive(form);
    ask.choices = {{}};
    QTest::keyClick(&form, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_EQ(ask.questions.size(), 1U);
    EXPECT_EQ(ask.questions[0].title, "Spara projekt");
    QTest::keyClick(&form, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(MainFormTest, TellsOfUnsavedChangesInTheStatusBar)
{
    MainForm form(session);
    ShowActive(form);
    const auto& pane = Find<QLabel>(form, "MainStatusBarUnsaved");
    // The window compares when there are no further events.
    const auto waitForUser = [] {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&loop] { QTimer::singleShot(0, &loop, &QEventLoop::quit); });
        loop.exec();
    };
    waitForUser();
    EXPECT_EQ(pane.text(), "");
    Find<QLineEdit>(form, "tProjectName").setText("Nytt namn");
    waitForUser();
    EXPECT_EQ(pane.text(), "Osparade ändringar");
    EXPECT_TRUE(pane.isVisible());
    session.state.ProjectFileName = "C:\\p.qnp";
    form.RunCommand(CommandId::SaveProject);
    waitForUser();
    EXPECT_EQ(pane.text(), "");
}

TEST_F(MainFormTest, ClosesByItsCommand)
{
    MainForm form(session);
    ShowActive(form);
    form.RunCommand(CommandId::Exit);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(MainFormTest, NamesTheProjectAloneWhateverItsSlashes)
{
    MainForm form(session);
    session.state.ProjectFileName = "Z:/a/b.qnp";
    form.ShowTitle();
    EXPECT_EQ(form.windowTitle(), "Tavrell Quillon 2004 - [b.qnp]");
    session.RecentFiles = {"Z:/a/b.qnp"};
    form.ShowRecentFiles();
    EXPECT_EQ(ActionOf(form, CommandId::RecentFile1).text(), "b.qnp");
}

class HiddenTabs : public WindowTest {
protected:
    void Hide(HideTabs hidden)
    {
        session.Settings.HideTabs = hidden;
        form.ShowSettings();
    }
    QStringList Captions()
    {
        QStringList captions;
        for (int i = 0; i < tabs.count(); ++i)
            captions << tabs.tabText(i).trimmed();
        return captions;
    }

    MainForm form{session};
    QTabWidget& tabs = Find<QTabWidget>(form, "MainTab");
};

TEST_F(HiddenTabs, AreNotInTheRow)
{
    Hide({kOn, kOff, kOn});
    EXPECT_EQ(Captions(), QStringList({"Fillista", "Design", "Dialogrutor", "INI-filer"}));
    ShowActive(form);
    SavePicture(form, "MainForm-hidden-tabs");
    Hide({kOff, kOn, kOff});
    EXPECT_EQ(Captions(),
              QStringList({"Fillista", "Design", "Dialogrutor", "Registry", "Komponenter"}));
    for (int i = 0; i < tabs.count(); ++i)
        EXPECT_FALSE(tabs.tabIcon(i).isNull()) << i;
    Hide({});
    EXPECT_EQ(tabs.count(), 6);
    for (int tab = 0; tab < kTabCount; ++tab) {
        form.SelectTab(static_cast<Tab>(tab));
        EXPECT_EQ(tabs.currentIndex(), tab);
        EXPECT_EQ(static_cast<int>(form.SelectedTab()), tab);
    }
}

TEST_F(HiddenTabs, AreReachedByNoKeyAndNoWheel)
{
    ShowActive(form);
    Hide({kOn, kOff, kOn});
    QTabBar& bar = *tabs.tabBar();
    std::set<Tab> reached;
    const auto note = [&] { reached.insert(form.SelectedTab()); };
    bar.setFocus();
    for (int i = 0; i < 8; ++i, note())
        QTest::keyClick(&bar, Qt::Key_Right);
    for (int i = 0; i < 8; ++i, note())
        QTest::keyClick(&tabs, Qt::Key_Tab, Qt::ControlModifier);
    for (int i = 0; i < 8; ++i, note()) {
        const QPointF place = bar.rect().center();
        QWheelEvent wheel(place, bar.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&bar, &wheel);
    }
    EXPECT_EQ(reached, (std::set{Tab::Files, Tab::Design, Tab::Dialogs, Tab::IniFiles}));
    form.RunCommand(CommandId::RegistryTab);
    EXPECT_NE(form.SelectedTab(), Tab::Registry);
}

TEST_F(HiddenTabs, GiveWayToAnotherWhenTheyAreOpen)
{
    ShowActive(form);
    form.SelectTab(Tab::Components);
    EXPECT_TRUE(Find<QWidget>(form, "ComponentsPage").isVisible());
    Hide({kOff, kOff, kOn});
    EXPECT_NE(form.SelectedTab(), Tab::Components);
    EXPECT_FALSE(Find<QWidget>(form, "ComponentsPage").isVisible());
}

TEST_F(MainFormTest, ForgetsWhatWasTypedWhenTheProjectChanges)
{
    MainForm form(session);
    ShowActive(form);
    auto& name = Find<QLineEdit>(form, "tProjectName");
    Type(form, "tProjectName", "Hemligt");
    Type(form, "tProjectName", "Lika");
    form.SelectTab(Tab::Registry);
    auto& registry = Find<QPlainTextEdit>(form, "editRegistryList");
    registry.setFocus();
    TypeKeys(registry, "nyckel");
    EXPECT_TRUE(name.isUndoAvailable());
    EXPECT_TRUE(registry.document()->isUndoAvailable());
    // Another project that happens to have the same texts.
    form.ShowProject();
    EXPECT_EQ(name.text(), "Lika");
    EXPECT_FALSE(name.isUndoAvailable());
    EXPECT_FALSE(registry.document()->isUndoAvailable());
    name.undo();
    registry.undo();
    EXPECT_EQ(session.project.ProjectName.ProjectName, "Lika");
    EXPECT_EQ(session.project.Lists.Registry, "nyckel");
}

class DroppedProjects : public testing::Test {
protected:
    /// Whether the window takes the drag, and what it then drops.
    bool Drop(const QStringList& urls)
    {
        QMimeData dropped;
        QList<QUrl> list;
        for (const QString& url : urls)
            list << QUrl(url);
        dropped.setUrls(list);
        QDragEnterEvent enter({20, 200}, Qt::CopyAction, &dropped, Qt::LeftButton, {});
        enter.ignore();
        QApplication::sendEvent(&form, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop({20, 200}, Qt::CopyAction, &dropped, Qt::LeftButton, {});
        QApplication::sendEvent(&form, &drop);
        QApplication::processEvents();
        return true;
    }

    MemoryHost machine;
    ScriptedAsk ask;
    Session session = NewSession(machine.host, ask, "C:\\Quillon");
    MainForm form{session, {.toHost = {}, .toWindows = [](const std::string& path) {
                                return std::optional("C:" + FromQt(ToQt(path).replace('/', '\\')));
                            }}};
};

TEST_F(DroppedProjects, AreOpenedOnWhateverTab)
{
    ask.Expect({BoxKind::YesNoCancel, "Tavrell Quillon 2004",
                "Vissa inställningar har ändrats. Vill du spara dessa?", Answer::No});
    machine.files.Put("C:\\Quillon\\Res\\SetupDef.bmp", "BM");
    machine.files.PutFolder("C:\\p");
    {
        ScriptedAsk nobody;
        Session other = NewSession(machine.host, nobody, "C:\\Quillon");
        other.state.ProjectFileName = "C:\\p\\släppt.QNP";
        other.project.ProjectName.ProjectName = "Släppt";
        SaveProject(other);
    }
    session.state.ProjectIsDirty = kOn;
    form.SelectTab(Tab::Dialogs);
    EXPECT_TRUE(Drop({"file:///p/sl%C3%A4ppt.QNP"}));
    EXPECT_EQ(session.project.ProjectName.ProjectName, "Släppt");
    EXPECT_EQ(form.windowTitle(), "Tavrell Quillon 2004 - [släppt.QNP]");
}

TEST_F(DroppedProjects, AreFilesLikeOthersAmongOthers)
{
    EXPECT_FALSE(Drop({"file:///p/a.qnp", "file:///p/b.txt"}));
    EXPECT_FALSE(Drop({"file:///p/a.txt"}));
}

} // namespace
} // namespace quillon::test
