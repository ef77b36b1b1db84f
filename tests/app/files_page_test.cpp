// The tab "Fillista" in its window: what the list shows, and what keys, clicks and drops do to it.
#include "app/MainForm.h"
#include "app/file_list/FileListView.h"
#include "app/pages/FilesPage.h"

#include "filelist/list_builder.h"
#include "shell/settings_file.h"
#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

FileListRow FullRow(const Text& name, const Text& destination, const Text& date, const Text& icon)
{
    FileListRow row = MakeRow(name, destination, "c:\\d\\" + LowerCase(name));
    row[Size] = "1,5";
    row[Date] = date;
    row[Time] = "12:30";
    row[IconMarker] = icon;
    row[CopyOptions] = "DA";
    row[ComponentNumber] = "2";
    return row;
}

class FilesPageTest : public WindowTest {
protected:
    void OpenWindow(std::vector<FileListRow> rows)
    {
        session.project.Files.rows = std::move(rows);
        for (const FileListRow& row : session.project.Files.rows)
            if (row.HasSource())
                machine.files.Put(row[Source], std::string(1536, 'x'));
        form = std::make_unique<MainForm>(
            session, HostPaths{.toHost = [](const Text& path) { return path; },
                               .toWindows = [](const std::string& path) -> std::optional<Text> {
                                   if (path.find('\\') != std::string::npos)
                                       return std::nullopt;
                                   return "C:" + ReplaceAll(path, "/", "\\");
                               }});
        form->resize(1000, 600);
        ShowActive(*form);
        list = &Find<FileListView>(*form, "ListViewFiles");
        list->setFocus();
    }
    void OpenThreeRows()
    {
        OpenWindow({FullRow("a.txt", "%WINDIR", "2004-03-01", ""),
                    FullRow("b.txt", "%DESTDIR", "2004-01-01", "Ikon"),
                    FullRow("c.txt", "%SYSDIR", "2004-02-01", "")});
    }

    std::vector<Text> ShownNames()
    {
        std::vector<Text> names;
        for (int row = 0; row < list->model()->rowCount(); ++row)
            names.push_back(FromQt(list->model()->index(row, 0).data().toString()));
        return names;
    }
    std::vector<Text> ShownHeaders()
    {
        std::vector<Text> headers;
        for (int section = 0; section < list->header()->count(); ++section)
            if (!list->header()->isSectionHidden(section))
                headers.push_back(FromQt(list->model()
                                             ->headerData(section, Qt::Horizontal, Qt::DisplayRole)
                                             .toString()));
        return headers;
    }
    void ClickHeader(Column column)
    {
        const int section = static_cast<int>(column);
        QTest::mouseClick(list->header()->viewport(), Qt::LeftButton, {},
                          {list->header()->sectionViewportPosition(section) +
                               list->header()->sectionSize(section) / 2,
                           list->header()->height() / 2});
    }
    void Select(const std::vector<std::size_t>& rows) { form->ShowFileList(rows); }
    void ClickRow(int row, Qt::KeyboardModifiers keys = {})
    {
        const QRect place = list->visualRect(list->model()->index(row, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, keys, place.center());
    }
    Text StatusText() { return FromQt(Find<QLabel>(*form, "MainStatusBarPane1").text()); }
    /// True when the page took the drag.
    bool DropOnList(const QStringList& urls)
    {
        QMimeData dropped;
        QList<QUrl> list_;
        for (const QString& url : urls)
            list_ << QUrl(url);
        dropped.setUrls(list_);
        auto& page = Find<QWidget>(*form, "FilesPage");
        QDragEnterEvent enter({20, 200}, Qt::CopyAction | Qt::MoveAction, &dropped, Qt::LeftButton,
                              {});
        QApplication::sendEvent(&page, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent drop({20, 200}, Qt::CopyAction | Qt::MoveAction, &dropped, Qt::LeftButton, {});
        QApplication::sendEvent(&page, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "the files stay where they are";
        QApplication::processEvents();
        return true;
    }

    std::unique_ptr<MainForm> form;
    FileListView* list = nullptr;
};

// The same with boxes to come, since these are laid ready first.
class FilesPageBoxes : public FilesPageTest {
protected:
    void RunWith(std::deque<ExpectedBox> boxes, std::function<void()> act)
    {
        for (ExpectedBox& box : boxes)
            ask.Expect(std::move(box));
        act();
    }
};

TEST_F(FilesPageTest, ShowsTheColumnsThatAreNotThereForDataOnly)
{
    OpenThreeRows();
    EXPECT_THAT(ShownHeaders(), ElementsAre("Filnamn", "Destination", "Storlek (kb)", "Datum",
                                            "Tid", "Ikon", "Inst"));
    EXPECT_EQ(list->model()->columnCount(), 15);
    const Text row[] = {"a.txt", "%WINDIR", "1,5", "2004-03-01", "12:30", "", "DA"};
    for (int column = 0; column < 7; ++column)
        EXPECT_EQ(FromQt(list->model()->index(0, column).data().toString()), row[column]);
}

TEST_F(FilesPageTest, GivesItsColumnsTheirWidthsInTwipsOfTheFont)
{
    OpenThreeRows();
    const auto width = [&](Column column) { return list->columnWidth(static_cast<int>(column)); };
    const double pixelsPerTwip = list->fontMetrics().height() / 13.0 / 15.0;
    EXPECT_NEAR(width(Filename), 1440 * pixelsPerTwip, 1);
    EXPECT_NEAR(width(CopyOptions), 1000 * pixelsPerTwip, 1);
    EXPECT_GE(width(Size), 1100 * pixelsPerTwip - 1);
    EXPECT_GT(width(Date), list->fontMetrics().horizontalAdvance("2004-12-30"))
        << "in a wide font, too, a date is read whole";
    EXPECT_EQ(list->header()->length(), list->viewport()->width())
        << "the destination has what the others leave";
    list->resize(300, 400);
    EXPECT_NEAR(width(Destination), 2800 * pixelsPerTwip, 1) << "and never less than its own";
}

TEST_F(FilesPageTest, ShowsComponentNumbersWhileAComponentIsInUse)
{
    OpenThreeRows();
    const int without = list->columnWidth(Destination);
    session.project.FileComponents[3].Comp = kOn;
    form->ShowProject();
    EXPECT_THAT(ShownHeaders(), testing::Contains("K"));
    const double pixelsPerTwip = list->fontMetrics().height() / 13.0 / 15.0;
    EXPECT_NEAR(list->columnWidth(ComponentNumber), 320 * pixelsPerTwip, 1);
    EXPECT_NEAR(without - list->columnWidth(Destination), 350 * pixelsPerTwip, 1);
    session.project.FileComponents[3].Comp = kOff;
    form->ShowSettings();
    EXPECT_THAT(ShownHeaders(), testing::Not(testing::Contains("K")));
    EXPECT_EQ(list->columnWidth(Destination), without);
}

TEST_F(FilesPageTest, ShowsTheSourcePathOnDemand)
{
    OpenThreeRows();
    session.Settings.ListOptions.ShowAlsoSourcePathInFileList = kOn;
    form->ShowSettings();
    EXPECT_EQ(ShownHeaders().back(), "Källa");
    EXPECT_GT(list->columnWidth(Source), 100);
    session.Settings.ListOptions.ShowAlsoSourcePathInFileList = kOff;
    form->ShowSettings();
    EXPECT_EQ(ShownHeaders().back(), "Inst");
}

TEST_F(FilesPageTest, DrawsGridLinesOnDemand)
{
    OpenThreeRows();
    const QImage without = list->viewport()->grab().toImage();
    session.Settings.ListOptions.ShowGridLinesInFileList = kOn;
    form->ShowSettings();
    const QImage with = list->viewport()->grab().toImage();
    EXPECT_NE(with, without);
    const QRect cell = list->visualRect(list->model()->index(1, Destination));
    const QRgb line = list->palette().color(QPalette::Midlight).rgb();
    EXPECT_EQ(PixelAt(with, {cell.center().x(), cell.bottom()}), line);
    EXPECT_EQ(PixelAt(with, {cell.right(), cell.center().y()}), line);
}

TEST_F(FilesPageTest, KeepsTheWidthsThatTheUserSets)
{
    session.Settings.WindowPlace.ColumnWidths = "0:150 9:333";
    OpenThreeRows();
    EXPECT_EQ(session.Settings.WindowPlace.ColumnWidths, "0:150 9:333")
        << "showing the list is nobody's wish";
    const double scale = list->logicalDpiX() / 96.0;
    EXPECT_NEAR(list->columnWidth(Filename), 150 * scale, 1);

    list->header()->resizeSection(Destination, static_cast<int>(240 * scale));
    list->header()->resizeSection(Filename, static_cast<int>(180 * scale));
    EXPECT_EQ(session.Settings.WindowPlace.ColumnWidths, "0:180 1:240 9:333");
    form->resize(1400, 600);
    EXPECT_NEAR(list->columnWidth(Destination), 240 * scale, 1);
    session.Settings.ListOptions.ShowAlsoSourcePathInFileList = kOn;
    form->ShowSettings();
    EXPECT_NEAR(list->columnWidth(Source), 333 * scale, 1);
    EXPECT_EQ(session.Settings.WindowPlace.ColumnWidths, "0:180 1:240 9:333");
}

TEST_F(FilesPageTest, FindsTheWidthsAgainTheNextTimeItStarts)
{
    OpenThreeRows();
    const double scale = list->logicalDpiX() / 96.0;
    list->header()->resizeSection(Filename, static_cast<int>(222 * scale));
    list->header()->resizeSection(Destination, static_cast<int>(311 * scale));
    const int usualSize = list->columnWidth(Size);
    ASSERT_TRUE(form->close());
    form.reset();

    Session next = NewSession(machine.host, ask, "C:\\Quillon");
    ReadDataFromIniFile(next);
    MainForm window(next);
    window.resize(1000, 600);
    ShowActive(window);
    auto& shown = Find<FileListView>(window, "ListViewFiles");
    EXPECT_NEAR(shown.columnWidth(Filename), 222 * scale, 1);
    EXPECT_NEAR(shown.columnWidth(Destination), 311 * scale, 1);
    EXPECT_EQ(shown.columnWidth(Size), usualSize);
}

TEST_F(FilesPageTest, SortsByAClickOnEachHeader)
{
    OpenThreeRows();
    session.Settings.ListOptions.ShowAlsoSourcePathInFileList = kOn;
    session.project.FileComponents[1].Comp = kOn;
    form->ShowSettings();
    struct Case {
        Column clicked;
        std::vector<Text> names;
        Column key;
    };
    const Case cases[] = {
        {Destination, {"b.txt", "c.txt", "a.txt"}, Destination},
        {Size, {"b.txt", "c.txt", "a.txt"}, Destination},
        {Date, {"b.txt", "c.txt", "a.txt"}, Date},
        {Filename, {"a.txt", "b.txt", "c.txt"}, Filename},
        {IconMarker, {"b.txt", "a.txt", "c.txt"}, IconMarker},
        {Size, {"a.txt", "c.txt", "b.txt"}, IconMarker},
        {Source, {"a.txt", "b.txt", "c.txt"}, Source},
        {Time, {"a.txt", "b.txt", "c.txt"}, Time},
        {CopyOptions, {"a.txt", "b.txt", "c.txt"}, CopyOptions},
        {ComponentNumber, {"a.txt", "b.txt", "c.txt"}, ComponentNumber},
    };
    for (const Case& given : cases) {
        list->scrollTo(list->model()->index(0, static_cast<int>(given.clicked)));
        ClickHeader(given.clicked);
        EXPECT_EQ(ShownNames(), given.names) << kListColumns[given.clicked].header;
        EXPECT_EQ(session.project.Files.sortKey, given.key);
        EXPECT_TRUE(list->header()->isSortIndicatorShown());
        EXPECT_EQ(list->header()->sortIndicatorSection(), static_cast<int>(given.key));
        EXPECT_EQ(list->header()->sortIndicatorOrder(),
                  given.clicked == IconMarker ? Qt::DescendingOrder : Qt::AscendingOrder);
    }
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(FilesPageTest, KeepsTheSelectedRowsThroughASort)
{
    OpenThreeRows();
    Select({0, 2});
    ClickHeader(Destination);
    EXPECT_THAT(ShownNames(), ElementsAre("b.txt", "c.txt", "a.txt"));
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1, 2));
}

TEST_F(FilesPageTest, TellsOfRowsInTheStatusBarOrOfTheSelectedOnes)
{
    OpenThreeRows();
    EXPECT_EQ(StatusText(), "3 objekt,   4,0 kb");
    ClickRow(0);
    EXPECT_EQ(StatusText(), "3 objekt,   4,0 kb");
    ClickRow(2, Qt::ControlModifier);
    EXPECT_EQ(StatusText(), "2 markerade objekt");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(0, 2));
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(StatusText(), "3 markerade objekt");
    ClickRow(1);
    EXPECT_EQ(StatusText(), "3 objekt,   4,0 kb");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1));
}

TEST_F(FilesPageTest, FindsARowByTheKeysThatAreTyped)
{
    OpenThreeRows();
    QTest::keyClicks(list, "c.t");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
}

TEST_F(FilesPageTest, FindsARowByItsNameWhateverColumnWasClicked)
{
    OpenThreeRows();
    const QRect destination = list->visualRect(list->model()->index(0, Destination));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, destination.center());
    ASSERT_EQ(list->currentIndex().column(), Destination);
    QTest::keyClicks(list, "c.t");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
}

TEST_F(FilesPageTest, CopiesTheSelectedRowsWholeWithTabsBetweenTheColumns)
{
    OpenThreeRows();
    QApplication::clipboard()->setText("before");
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "before") << "nothing is selected";
    Select({0, 2});
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(FromQt(QApplication::clipboard()->text()),
              "a.txt\t%WINDIR\t1,5\t2004-03-01\t12:30\t\tDA\n"
              "c.txt\t%SYSDIR\t1,5\t2004-02-01\t12:30\t\tDA\n");
    session.Settings.ListOptions.ShowAlsoSourcePathInFileList = kOn;
    session.project.FileComponents[0].Comp = kOn;
    form->ShowSettings();
    Select({1});
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(FromQt(QApplication::clipboard()->text()),
              "b.txt\t%DESTDIR\t1,5\t2004-01-01\t12:30\tIkon\tDA\t2\tc:\\d\\b.txt\n")
        << "the columns that are shown";
}

TEST_F(FilesPageTest, PastesRowsOfAnotherWindowWhole)
{
    OpenThreeRows();
    Select({0, 1});
    QTest::keyClick(list, Qt::Key_C, Qt::ControlModifier);
    const FileListRow copied = session.project.Files.rows[1];
    form->RunCommand(CommandId::NewProject);
    ASSERT_EQ(ShownNames().size(), 0U);
    list->setFocus();
    QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
    EXPECT_THAT(ShownNames(), ElementsAre("a.txt", "b.txt"));
    EXPECT_EQ(session.project.Files.rows[1], copied) << "all columns";
    EXPECT_THAT(form->SelectedRows(), ElementsAre(0, 1));
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(StatusText(), "2 objekt,   3,0 kb");
    form->RunCommand(CommandId::Undo);
    EXPECT_THAT(ShownNames(), IsEmpty()) << "one step back";
}

TEST_F(FilesPageBoxes, PastesNoRowThatIsThere)
{
    OpenThreeRows();
    Select({0, 1});
    form->RunCommand(CommandId::Copy);
    Select({2});
    form->RunCommand(CommandId::Paste);
    EXPECT_EQ(ShownNames().size(), 3U);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    form->RunCommand(CommandId::Copy);
    RunWith({{BoxKind::Inform, "Quillon"}}, [&] { form->RunCommand(CommandId::Paste); });
    EXPECT_EQ(ShownNames().size(), 3U);
}

TEST_F(FilesPageTest, PastesNothingOfATextAndFilesOfAFileManager)
{
    OpenThreeRows();
    QApplication::clipboard()->setText("a.txt\tb");
    QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(ShownNames().size(), 3U);
    machine.files.Put("C:\\home\\d.txt", "x");
    auto* copied = new QMimeData;
    copied->setUrls({QUrl("file:///home/d.txt")});
    QApplication::clipboard()->setMimeData(copied);
    ask.choices = {{{"%DESTDIR"}}};
    QTest::keyClick(list, Qt::Key_V, Qt::ControlModifier);
    QApplication::processEvents();
    EXPECT_THAT(ShownNames(), ElementsAre("a.txt", "b.txt", "c.txt", "d.txt"));
}

TEST_F(FilesPageTest, GivesNamesTheRoomThatTheyAskForUpToALimit)
{
    OpenThreeRows();
    const int usual = list->columnWidth(Filename);
    const auto nameFits = [&](int row) {
        return list->sizeHintForIndex(list->model()->index(row, Filename)).width() <=
               list->columnWidth(Filename);
    };
    session.project.Files.rows[1][Filename] = "Användarhandbok för nybörjare.pdf";
    form->ShowFileList({});
    EXPECT_GT(list->columnWidth(Filename), usual);
    EXPECT_TRUE(nameFits(1));
    EXPECT_EQ(list->header()->length(), list->viewport()->width())
        << "the destination has what the others leave";
    EXPECT_EQ(session.Settings.WindowPlace.ColumnWidths, "") << "nobody has set a width";
    const int wide = list->columnWidth(Filename);
    session.project.Files.rows[1][Filename] = std::string(200, 'W');
    form->ShowFileList({});
    EXPECT_GT(list->columnWidth(Filename), wide);
    EXPECT_LE(list->columnWidth(Filename), 45 * list->fontMetrics().averageCharWidth());
    EXPECT_FALSE(nameFits(1));
    session.project.Files.rows[1][Filename] = "b.txt";
    form->ShowFileList({});
    EXPECT_EQ(list->columnWidth(Filename), usual);
}

TEST_F(FilesPageTest, ShowsTheFileByTheKeysForProperties)
{
    OpenThreeRows();
    Select({1});
    OnNextDialog([](QDialog& dialog) { EXPECT_EQ(dialog.objectName(), "DlgFileInfo"); });
    QTest::keyClick(list, Qt::Key_Return, Qt::AltModifier);
}

TEST_F(FilesPageTest, LeavesTheKeysOfTheListAloneWhereTextIsTyped)
{
    OpenThreeRows();
    Select({1});
    auto& name = Find<QLineEdit>(*form, "tProjectName");
    name.setText("abc");
    name.setFocus();
    name.setCursorPosition(0);
    QTest::keyClick(&name, Qt::Key_Delete);
    EXPECT_EQ(name.text(), "bc");
    EXPECT_EQ(ShownNames().size(), 3U);
}

TEST_F(FilesPageTest, OpensItsMenuByShiftF10)
{
    OpenThreeRows();
    Select({1});
    QTest::keyClick(list, Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "menuPopupFileList");
    const QRect row = list->visualRect(list->model()->index(1, Filename));
    EXPECT_NEAR(list->viewport()->mapFromGlobal(menu->pos()).y(), row.center().y(), row.height());
    menu->close();
}

TEST_F(FilesPageTest, HintsAtWhatToDoWhileItIsEmpty)
{
    OpenWindow({});
    EXPECT_EQ(StatusText(), "0 objekt,   0,0 kb");
    const QImage empty = list->viewport()->grab().toImage();
    QImage background = empty;
    background.fill(list->palette().color(QPalette::Base));
    EXPECT_NE(empty, background);
    EXPECT_TRUE(list->accessibleDescription().contains("Addera filer"));
    SavePicture(*form, "FilesPage_empty");
}

TEST_F(FilesPageBoxes, DeletesTheSelectedRowsByKeyOnYesOnly)
{
    OpenThreeRows();
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(ShownNames().size(), 3U) << "nothing is selected";
    Select({1});
    RunWith({{BoxKind::YesNo, "Fillista", "Vill du ta bort det markerade objektet från listan?",
              Answer::No}},
            [&] { QTest::keyClick(list, Qt::Key_Delete); });
    EXPECT_EQ(ShownNames().size(), 3U);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1));
    Select({0, 1});
    RunWith({{BoxKind::YesNo, "Fillista", "Vill du ta bort de markerade objekten från listan?"}},
            [&] { QTest::keyClick(list, Qt::Key_Delete); });
    EXPECT_THAT(ShownNames(), ElementsAre("c.txt"));
    EXPECT_THAT(form->SelectedRows(), IsEmpty());
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    EXPECT_EQ(StatusText(), "1 objekt,   2,0 kb");
}

TEST_F(FilesPageBoxes, RefreshesTheRowsByF5)
{
    OpenThreeRows();
    machine.files.Put("c:\\d\\a.txt", std::string(4096, 'x'));
    machine.files.RemoveFile("c:\\d\\b.txt");
    Select({2});
    RunWith({{BoxKind::Warn, "Filer saknas"}}, [&] { QTest::keyClick(list, Qt::Key_F5); });
    EXPECT_EQ(list->model()->index(0, Size).data().toString(), "4,0");
    EXPECT_EQ(list->model()->index(1, Destination).data().toString(), "<Filen saknas>");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
    EXPECT_EQ(StatusText(), "3 objekt,   6,0 kb");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(FilesPageTest, AddsFilesByItsCommand)
{
    OpenThreeRows();
    machine.files.Put("C:\\D\\aa.txt", "x");
    ask.choices = {{{"C:\\D\\aa.txt"}}, {{"%DESTDIR"}}};
    Select({1});
    form->RunCommand(CommandId::AddFiles);
    EXPECT_THAT(ShownNames(), ElementsAre("a.txt", "aa.txt", "b.txt", "c.txt"));
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2)) << "the same row as before";
    EXPECT_EQ(StatusText(), "4 objekt,   4,0 kb");
    EXPECT_EQ(session.LastInstallFilesDir, "C:\\D");
}

TEST_F(FilesPageTest, TellsOfNoRowsWhenTheFileDialogIsCancelled)
{
    OpenWindow({});
    ask.choices = {{}};
    form->RunCommand(CommandId::AddFiles);
    EXPECT_EQ(StatusText(), "0 objekt,   0,0 kb");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(FilesPageTest, AddsFilesFromTheDialogWithTheLookOfTheSettings)
{
    OpenWindow({});
    ask.choices = {{}, {}};
    form->RunCommand(CommandId::AddFiles);
    session.Settings.ListOptions.OldStyleAddDialogBox = kOn;
    form->RunCommand(CommandId::AddFiles);
    EXPECT_EQ(ask.questions[0].look, FileQuestion::Look::Details);
    EXPECT_EQ(ask.questions[1].look, FileQuestion::Look::NamesOnly);
}

TEST_F(FilesPageTest, AddsATreeByItsCommand)
{
    OpenThreeRows();
    machine.files.Put("C:\\Data\\App\\prog.exe", std::string(1024, 'x'));
    machine.files.Put("C:\\Data\\App\\Sub\\aa.txt", std::string(1024, 'x'));
    ask.choices = {{{"C:\\Data\\App"}}};
    Select({1});
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "RecursiveCollect");
        Click(dialog, "cmdStart");
        EXPECT_EQ(Find<QLabel>(dialog, "sNumberFiles").text(), "2");
        Click(dialog, "cmdClose");
    });
    form->RunCommand(CommandId::AddTree);
    EXPECT_THAT(ShownNames(), ElementsAre("a.txt", "aa.txt", "b.txt", "c.txt", "prog.exe"));
    EXPECT_EQ(session.project.Files.rows[1][Destination], "%DESTDIR\\Sub");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2)) << "the same row as before";
    EXPECT_EQ(StatusText(), "5 objekt,   6,0 kb");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(FilesPageTest, AddsNoTreeWhenNoFolderIsChosen)
{
    OpenThreeRows();
    ask.choices = {{}};
    form->RunCommand(CommandId::AddTree);
    EXPECT_EQ(ShownNames().size(), 3U);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(FilesPageTest, AddsAnEmptyFolderByItsCommand)
{
    OpenWindow({});
    ask.choices = {{{"%DESTDIR\\Temp"}}};
    form->RunCommand(CommandId::AddEmptyFolder);
    EXPECT_THAT(ShownNames(), ElementsAre("<Dir>"));
    EXPECT_EQ(StatusText(), "1 objekt,   0,0 kb");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(FilesPageTest, SortsByItsCommandWithoutMarkingTheProject)
{
    OpenThreeRows();
    Select({0});
    OnNextDialog([](QDialog& dialog) {
        Click(dialog, "oDate");
        Click(dialog, "cmdOK");
    });
    form->RunCommand(CommandId::SortList);
    EXPECT_THAT(ShownNames(), ElementsAre("b.txt", "c.txt", "a.txt"));
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdCancel"); });
    form->RunCommand(CommandId::SortList);
    EXPECT_EQ(session.project.Files.sortKey, Date);
}

TEST_F(FilesPageTest, TakesFilesAndFoldersThatAreDroppedOnIt)
{
    OpenThreeRows();
    machine.files.Put("C:\\home\\å\\läs mig.txt", "x");
    machine.files.Put("C:\\home\\App\\Sub\\prog.exe", "x");
    ask.choices = {{{"%DESTDIR"}}};
    EXPECT_TRUE(DropOnList({"file:///home/%C3%A5/l%C3%A4s%20mig.txt", "file:///home/App"}));
    EXPECT_THAT(ShownNames(), ElementsAre("a.txt", "b.txt", "c.txt", "läs mig.txt", "prog.exe"));
    EXPECT_EQ(session.project.Files.rows[4][Destination], "%DESTDIR\\App\\Sub");
    EXPECT_EQ(StatusText(), "5 objekt,   4,0 kb");
}

TEST_F(FilesPageBoxes, TellsOfWhatIsDroppedAndHasNoPath)
{
    OpenThreeRows();
    RunWith({{BoxKind::Critical, "Kan ej addera"}}, [&] {
        DropOnList({"https://exempel.se/fil.txt", "file:///home/a%5Cb.txt"});
    });
    EXPECT_EQ(ShownNames().size(), 3U);
    EXPECT_THAT(ask.shown[0].text, testing::HasSubstr("'https://exempel.se/fil.txt' och 1 till"));
}

TEST_F(FilesPageTest, TakesNoTextThatIsDropped)
{
    OpenThreeRows();
    QMimeData dropped;
    dropped.setText("a.txt");
    QDragEnterEvent enter({20, 200}, Qt::CopyAction, &dropped, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(&Find<QWidget>(*form, "FilesPage"), &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(FilesPageTest, HoldsAsManyRowsAsAProject)
{
    std::vector<FileListRow> rows(kMaxRows, MakeRow("x"));
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i][Filename] = "fil" + NumberText(static_cast<std::int64_t>(100000 + i)) + ".dat";
    OpenWindow(std::move(rows));
    EXPECT_EQ(list->model()->rowCount(), 32767);
    QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(StatusText(), "32767 markerade objekt");
    EXPECT_EQ(list->selectionModel()->selection().size(), 1) << "one range, not a row each";
    ClickHeader(IconMarker);
    EXPECT_EQ(form->SelectedRows().size(), kMaxRows);
    QTest::keyClick(list, Qt::Key_End);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(kMaxRows - 1));
    EXPECT_TRUE(
        list->viewport()->rect().intersects(list->visualRect(list->model()->index(32766, 0))));
}

TEST_F(FilesPageTest, HasItsPicturesOnLightAndDark)
{
    session.project.FileComponents[1].Comp = kOn;
    session.Settings.ListOptions.ShowGridLinesInFileList = kOn;
    session.Settings.ListOptions.ShowAlsoSourcePathInFileList = kOn;
    OpenThreeRows();
    Select({1});
    SavePicture(*form, "FilesPage");
    SaveDarkPicture(*form, "FilesPage");
    session.project.Files.rows.clear();
    form->ShowFileList({});
    SaveDarkPicture(*form, "FilesPage_empty");
}

} // namespace
} // namespace quillon::test
