// The commands that change what is in the rows of the file list, by their ids and in the
// window.
#include "filelist/forms/row_commands.h"

#include "app/MainForm.h"
#include "app/file_list/FileListView.h"
#include "filelist/list_builder.h"
#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

constexpr CommandId kChangeDestination = CommandId::ChangeDestination;
constexpr CommandId kShowDestinations = CommandId::ShowDestinations;

FileListRow RowWith(const Text& name, const Text& destination, const Text& options)
{
    FileListRow row = MakeRow(name, destination, "c:\\d\\" + name);
    row[CopyOptions] = options;
    return row;
}

class RowCommands : public WindowTest {
protected:
    void OpenWindow()
    {
        session.project.Files =
            MakeList({MakeRow("<Dir>", "%DESTDIR\\Temp"), RowWith("a.txt", "%DESTDIR", "D"),
                      RowWith("b.txt", "%WINDIR", "DA"), RowWith("c.txt", "%DESTDIR", "D")});
        machine.files.Put("c:\\d\\a.txt", "x");
        form = std::make_unique<MainForm>(session);
        ShowActive(*form);
    }
    void SortBy(Column key)
    {
        session.project.Files.sortKey = key;
        form->ShowFileList({});
    }
    std::vector<Text> Texts(Column column)
    {
        std::vector<Text> texts;
        for (const FileListRow& row : session.project.Files.rows)
            texts.push_back(row[column]);
        return texts;
    }
    std::vector<Text> Names() { return NamesOf(session.project.Files); }
    /// What the list on the screen shows.
    std::vector<Text> ShownNames()
    {
        std::vector<Text> names;
        const auto& list = Find<FileListView>(*form, "ListViewFiles");
        for (int row = 0; row < list.model()->rowCount(); ++row)
            names.push_back(FromQt(list.model()->index(row, 0).data().toString()));
        return names;
    }
    void Replace(CommandId command, const Text& with, const Text& find = {}, bool part = false)
    {
        OnNextDialog([=](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), "DlgFindReplaceData");
            if (!find.empty())
                Type(dialog, "tFindThis", find);
            Type(dialog, "tReplaceWith", with);
            if (part)
                Click(dialog, "cPartOfText");
            Click(dialog, "cmdOK");
        });
        form->RunCommand(command);
    }

    std::unique_ptr<MainForm> form;
};

TEST_F(RowCommands, FindAndReplaceOnlyInAListWithRows)
{
    form = std::make_unique<MainForm>(session);
    for (const CommandId id :
         {CommandId::ReplaceDestinations, CommandId::ReplaceSources, CommandId::ReplaceOptions}) {
        ask.Expect({BoxKind::Inform, "Info",
                    "Det finns inga filer i fillistan. Innan du kan använda detta kommando måste "
                    "du ha lagt in filer i fillistan."});
        form->RunCommand(id);
    }
    EXPECT_EQ(ask.shown.size(), 3U);
}

TEST_F(RowCommands, ProposeTheTextOfTheFirstSelectedRow)
{
    OpenWindow();
    const std::pair<CommandId, Text> proposals[] = {{CommandId::ReplaceDestinations, "%WINDIR"},
                                                    {CommandId::ReplaceSources, "c:\\d"},
                                                    {CommandId::ReplaceOptions, "DA"}};
    for (const auto& [id, text] : proposals) {
        form->ShowFileList({2, 3});
        OnNextDialog([&](QDialog& dialog) { EXPECT_EQ(TextIn(dialog, "tFindThis"), text); });
        form->RunCommand(id);
        form->ShowFileList({});
        OnNextDialog([](QDialog& dialog) { EXPECT_EQ(TextIn(dialog, "tFindThis"), ""); });
        form->RunCommand(id);
    }
    EXPECT_EQ(session.state.ProjectIsDirty, kOff) << "each was cancelled";
}

TEST_F(RowCommands, ReplaceDestinations)
{
    OpenWindow();
    form->ShowFileList({1});
    Replace(CommandId::ReplaceDestinations, "%FONTDIR");
    EXPECT_THAT(Texts(Destination),
                ElementsAre("%DESTDIR\\Temp", "%FONTDIR", "%WINDIR", "%FONTDIR"));
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    Replace(CommandId::ReplaceDestinations, "%APPDATADIR", "%DESTDIR", true);
    EXPECT_THAT(Texts(Destination),
                ElementsAre("%APPDATADIR\\Temp", "%FONTDIR", "%WINDIR", "%FONTDIR"));
}

TEST_F(RowCommands, ReplaceSources)
{
    OpenWindow();
    form->ShowFileList({1});
    Replace(CommandId::ReplaceSources, "E:\\Ny", "c:\\d", true);
    EXPECT_THAT(Texts(Source), ElementsAre("", "E:\\Ny\\a.txt", "E:\\Ny\\b.txt", "E:\\Ny\\c.txt"));
    Replace(CommandId::ReplaceSources, "F:\\x");
    EXPECT_THAT(Texts(Source), ElementsAre("", "F:\\x", "F:\\x", "F:\\x"));
}

TEST_F(RowCommands, ReplaceCopyOptions)
{
    OpenWindow();
    form->ShowFileList({1});
    Replace(CommandId::ReplaceOptions, "vra");
    EXPECT_THAT(Texts(CopyOptions), ElementsAre("", "VRA", "DA", "VRA"));
}

TEST_F(RowCommands, PutReplacedRowsWhereTheyBelongAndKeepThemSelected)
{
    OpenWindow();
    SortBy(CopyOptions);
    form->ShowFileList({1, 2});
    Replace(CommandId::ReplaceOptions, "X");
    EXPECT_THAT(Names(), ElementsAre("<Dir>", "b.txt", "a.txt", "c.txt"));
    EXPECT_EQ(ShownNames(), Names());
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1, 2));
    EXPECT_THAT(Texts(CopyOptions), ElementsAre("", "DA", "X", "X"));
}

TEST_F(RowCommands, MarkTheProjectByOkEvenWhereNothingIsFound)
{
    OpenWindow();
    Replace(CommandId::ReplaceDestinations, "x", "finns inte");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    EXPECT_THAT(Texts(Destination),
                ElementsAre("%DESTDIR\\Temp", "%DESTDIR", "%WINDIR", "%DESTDIR"));
}

TEST_F(RowCommands, ChangeTheDestinationOfSelectedRows)
{
    OpenWindow();
    SortBy(Destination);
    session.project.Files.rows.erase(session.project.Files.rows.begin());
    form->ShowFileList({0});
    ask.choices = {{{"%XDIR"}}, {{"%YDIR"}}, {}};
    form->RunCommand(kChangeDestination);
    EXPECT_THAT(Names(), ElementsAre("c.txt", "b.txt", "a.txt"));
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
    EXPECT_EQ(ask.questions[0].folder, "%DESTDIR");
    form->ShowFileList({0, 2});
    form->RunCommand(kChangeDestination);
    EXPECT_THAT(Texts(Destination), ElementsAre("%WINDIR", "%YDIR", "%YDIR"));
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1, 2));
    EXPECT_EQ(std::exchange(session.state.ProjectIsDirty, kOff), kOn);
    form->RunCommand(kChangeDestination);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1, 2));
    EXPECT_EQ(session.state.ProjectIsDirty, kOff) << "cancelled";
}

TEST_F(RowCommands, ChangeNoDestinationWithoutSelectedRows)
{
    OpenWindow();
    form->ShowFileList({});
    form->RunCommand(kChangeDestination);
    EXPECT_TRUE(ask.questions.empty());
}

TEST_F(RowCommands, ChangeTheSourceOfTheFirstSelectedRow)
{
    OpenWindow();
    SortBy(Source);
    form->ShowFileList({1, 2});
    ask.Expect({BoxKind::Warn, "Varning"});
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(TextIn(dialog, "tFileSrcDir"), "c:\\d\\a.txt");
        Type(dialog, "tFileSrcDir", "z:\\a.txt");
        Click(dialog, "OKButton");
    });
    ChangeSourceCommand(session, *form, form.get());
    EXPECT_THAT(Texts(Source), ElementsAre("", "c:\\d\\b.txt", "c:\\d\\c.txt", "z:\\a.txt"));
    EXPECT_EQ(ShownNames(), Names());
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1, 3));
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(RowCommands, ChangeNoSourceWhereThereIsNone)
{
    OpenWindow();
    for (const std::vector<std::size_t>& selected :
         {std::vector<std::size_t>{}, std::vector<std::size_t>{0, 1}}) {
        form->ShowFileList(selected);
        ChangeSourceCommand(session, *form, form.get());
        ChangeComponentNumberCommand(session, *form, form.get());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(RowCommands, KeepTheSourceOnCancel)
{
    OpenWindow();
    form->ShowFileList({1});
    OnNextDialog([](QDialog& dialog) {
        Type(dialog, "tFileSrcDir", "z:\\a.txt");
        Click(dialog, "CancelButton");
    });
    ChangeSourceCommand(session, *form, form.get());
    EXPECT_EQ(session.project.Files.rows[1][Source], "c:\\d\\a.txt");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(RowCommands, MoveSelectedRowsToAComponent)
{
    OpenWindow();
    session.project.FileComponents[1].Comp = 1;
    SortBy(ComponentNumber);
    session.project.Files.rows[1][ComponentNumber] = "1";
    const auto enter = [&](const Text& number) {
        OnNextDialog([=](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), "DlgChCompNr");
            Type(dialog, "tInputData", number);
            Click(dialog, "cmdOK");
        });
        ChangeComponentNumberCommand(session, *form, form.get());
    };
    form->ShowFileList({1, 2});
    enter("2");
    EXPECT_THAT(Names(), ElementsAre("<Dir>", "c.txt", "a.txt", "b.txt"));
    EXPECT_THAT(Texts(ComponentNumber), ElementsAre("", "", "2", "2"));
    EXPECT_THAT(Texts(Destination),
                ElementsAre("%DESTDIR\\Temp", "%DESTDIR", "%DESTDIR", "%WINDIR"));
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2, 3));
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    enter("5");
    EXPECT_THAT(Texts(ComponentNumber), ElementsAre("", "", "", "")) << "5 is not in use";
}

// Kept: what counts is the first selected row.
TEST_F(RowCommands, GiveAnEmptyFolderTheNumberOfTheRowsAroundIt)
{
    OpenWindow();
    session.project.FileComponents[1].Comp = 1;
    session.project.Files.rows.push_back(session.project.Files.rows[0]);
    session.project.Files.rows.erase(session.project.Files.rows.begin());
    session.project.Files.sorted = false;
    form->ShowFileList({2, 3});
    OnNextDialog([](QDialog& dialog) {
        Type(dialog, "tInputData", "2");
        Click(dialog, "cmdOK");
    });
    ChangeComponentNumberCommand(session, *form, form.get());
    EXPECT_THAT(Texts(ComponentNumber), ElementsAre("", "", "2", "2"));
    EXPECT_EQ(Names().back(), "<Dir>");
}

TEST_F(RowCommands, ShowAllDestinationsAndChangeNothing)
{
    OpenWindow();
    form->ShowFileList({2});
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "DlgShowDestDirectories");
        EXPECT_EQ(Find<QListWidget>(dialog, "lbDirectories").count(), 3);
        EXPECT_EQ(Find<QLabel>(dialog, "sNrDirs").text(), "3");
        Click(dialog, "cmdOK");
    });
    form->RunCommand(kShowDestinations);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
    EXPECT_EQ(session.project.Files.sortKey, Filename);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(RowCommands, ShowNoDestinationsOfAnEmptyList)
{
    form = std::make_unique<MainForm>(session);
    ShowActive(*form);
    OnNextDialog([](QDialog& dialog) { EXPECT_EQ(Find<QLabel>(dialog, "sNrDirs").text(), "0"); });
    form->RunCommand(kShowDestinations);
}

} // namespace
} // namespace quillon::test
