// The commands for single files, the popup menu and the double click, run from the window.
#include "app/MainForm.h"
#include "app/file_list/FileListView.h"

#include "filelist/list_builder.h"
#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

constexpr const char* kNoFiles =
    "Det finns inga filer i fillistan. Innan du kan använda detta kommando måste du ha lagt in "
    "filer i fillistan och markerat en fil.";

class PerFileCommands : public WindowTest {
protected:
    void OpenRows()
    {
        FileListRow icon = MakeRow("b.ico", "%DESTDIR", "c:\\d\\b.ico");
        icon[Extension] = "ico";
        FileListRow program = MakeRow("a.exe", "%DESTDIR", "c:\\d\\a.exe");
        program[Extension] = "exe";
        program[CopyOptions] = "VA";
        FileListRow font = MakeRow("c.ttf", "%FONTDIR", "c:\\d\\c.ttf");
        font[Extension] = "ttf";
        session.project.Files = MakeList({MakeRow("<Dir>"), program, icon, font});
        machine.files.Put("C:\\D\\a.exe", "MZ");
        Open();
    }
    void Open()
    {
        form = std::make_unique<MainForm>(session);
        form->resize(1000, 600);
        ShowActive(*form);
        list = &Find<FileListView>(*form, "ListViewFiles");
        list->setFocus();
    }
    QPoint PlaceOf(int row) { return list->visualRect(list->model()->index(row, 0)).center(); }
    Text CellOf(int row, Column column)
    {
        return session.project.Files.rows[static_cast<std::size_t>(row)][column];
    }
    /// Runs the command and returns the name of the dialog that it shows; empty where it shows
    /// none.
    Text DialogOf(CommandId id)
    {
        Text name;
        QTimer::singleShot(0, [&] {
            if (auto* dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget())) {
                name = FromQt(dialog->objectName());
                dialog->reject();
            }
        });
        form->RunCommand(id);
        QApplication::processEvents();
        return name;
    }
    QMenu& OpenPopup(int row)
    {
        QTest::mouseClick(list->viewport(), Qt::RightButton, {}, PlaceOf(row));
        return Popup();
    }
    QMenu& Popup()
    {
        auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            qFatal("no popup menu came up");
        return *menu;
    }

    std::unique_ptr<MainForm> form;
    FileListView* list = nullptr;
};

constexpr CommandId kCommandsOfAFile[] = {CommandId::Icon, CommandId::CopyOptions,
                                          CommandId::RegisterFont, CommandId::FileInfo};

TEST_F(PerFileCommands, TellOfAnEmptyList)
{
    Open();
    for (const CommandId id : kCommandsOfAFile) {
        ask.Expect({BoxKind::Inform, "Info", kNoFiles});
        EXPECT_EQ(DialogOf(id), "") << static_cast<int>(id);
    }
}

TEST_F(PerFileCommands, DoNothingWithoutARowThatHasAFile)
{
    OpenRows();
    for (const std::vector<std::size_t>& rows : {std::vector<std::size_t>{}, {0}}) {
        form->ShowFileList(rows);
        for (const CommandId id : kCommandsOfAFile)
            EXPECT_EQ(DialogOf(id), "") << static_cast<int>(id);
    }
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(PerFileCommands, ShowTheDialogOfTheFirstSelectedRow)
{
    OpenRows();
    form->ShowFileList({1, 2});
    EXPECT_EQ(DialogOf(CommandId::Icon), "DlgIcon");
    EXPECT_EQ(DialogOf(CommandId::CopyOptions), "DlgCopyOptions");
    EXPECT_EQ(DialogOf(CommandId::FileInfo), "DlgFileInfo");
    EXPECT_EQ(DialogOf(CommandId::Variables), "DlgVariables");
    form->ShowFileList({3});
    EXPECT_EQ(DialogOf(CommandId::Icon), "") << "a font has no icon";
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    form->ShowFileList({2});
    ask.Expect({BoxKind::Critical, "Fel"}); // its file is not there
    EXPECT_EQ(DialogOf(CommandId::Icon), "DlgIconX");
}

TEST_F(PerFileCommands, SetCopyOptionsOfOneRow)
{
    OpenRows();
    form->ShowFileList({1});
    OnNextDialog([](QDialog& dialog) {
        EXPECT_TRUE(Find<QCheckBox>(dialog, "cVersionCheck").isChecked());
        Click(dialog, "cRegisterFile");
        Click(dialog, "cmdOK");
    });
    form->RunCommand(CommandId::CopyOptions);
    EXPECT_EQ(CellOf(1, CopyOptions), "VRA");
    EXPECT_EQ(list->model()->index(1, CopyOptions).data().toString(), "VRA");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(PerFileCommands, SetCopyOptionsOfAllSelectedRows)
{
    OpenRows();
    form->ShowFileList({0, 1, 3});
    OnNextDialog([](QDialog& dialog) {
        EXPECT_FALSE(Find<QCheckBox>(dialog, "cVersionCheck").isChecked());
        Click(dialog, "cSharedFile");
        Click(dialog, "cmdOK");
    });
    form->RunCommand(CommandId::CopyOptions);
    EXPECT_EQ(CellOf(0, CopyOptions), "S");
    EXPECT_EQ(CellOf(1, CopyOptions), "S");
    EXPECT_EQ(CellOf(2, CopyOptions), "");
    EXPECT_EQ(CellOf(3, CopyOptions), "S");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(0U, 1U, 3U));
}

TEST_F(PerFileCommands, KeepTheOrderOfTheListAndTheSelection)
{
    OpenRows();
    session.project.Files.sortKey = IconMarker;
    session.project.Files.sortDescending = true;
    form->ShowFileList({2});
    ask.Expect({BoxKind::Critical, "Fel"});
    OnNextDialog([](QDialog& dialog) {
        Type(dialog, "tCommandLine", "%DESTDIR\\a.exe");
        Click(dialog, "cmdOK");
    });
    form->RunCommand(CommandId::Icon);
    EXPECT_EQ(CellOf(0, Filename), "b.ico");
    EXPECT_EQ(CellOf(0, IconMarker), "Ikon");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(0U));
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(PerFileCommands, RegisterAFont)
{
    OpenRows();
    session.project.Files.rows[3][Extension] = "ttf";
    form->ShowFileList({3, 1});
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "DlgCopyOptions");
        Click(dialog, "cSharedFile");
        Click(dialog, "cmdOK");
    });
    form->RunCommand(CommandId::CopyOptions);
    EXPECT_EQ(CellOf(1, CopyOptions), "S");
    session.state.ProjectIsDirty = kOff;
    form->ShowFileList({3});
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "DlgRegisterFont");
        Type(dialog, "tFontDesc", "Blad");
        Click(dialog, "cmdOK");
    });
    form->RunCommand(CommandId::RegisterFont);
    EXPECT_EQ(CellOf(3, CopyOptions), "DWFN") << "its other options are lost";
    EXPECT_EQ(CellOf(3, IconDesc), "Blad");
    EXPECT_EQ(list->model()->index(3, CopyOptions).data().toString(), "DWFN");
    EXPECT_EQ(CellOf(1, CopyOptions), "S");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(PerFileCommands, RegisterNothingButFonts)
{
    OpenRows();
    form->ShowFileList({1});
    ask.Expect({BoxKind::Inform, "Info"});
    EXPECT_EQ(DialogOf(CommandId::RegisterFont), "");
    EXPECT_EQ(CellOf(1, CopyOptions), "VA");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(PerFileCommands, ShowTheFileOfTheRowAsTheDocument)
{
    OpenRows();
    section::ShowDocAfter& document = session.project.ShowDocAfter;
    document.DocFileName = "gammal.txt";
    const auto choose = [&](const char* button) {
        OnNextDialog([button](QDialog& dialog) {
            EXPECT_EQ(TextIn(dialog, "tDocumentFileName"), "%DESTDIR\\a.exe");
            Click(dialog, button);
        });
        QMenu& menu = OpenPopup(1);
        menu.findChild<QAction*>("mPopupShowDoc")->trigger();
        menu.close();
    };
    choose("cmdCancel");
    EXPECT_EQ(document.DocFileName, "gammal.txt");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    choose("cmdOK");
    EXPECT_EQ(document.DocFileName, "%DESTDIR\\a.exe");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(PerFileCommands, ShowTheFileOfADoubleClickedRow)
{
    OpenRows();
    Text shown;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, PlaceOf(1));
    OnNextDialog([&](QDialog& dialog) { shown = TextIn(dialog, "sFilename"); });
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, PlaceOf(1));
    EXPECT_EQ(shown, "a.exe");
}

TEST_F(PerFileCommands, StandInThePopupMenu)
{
    OpenRows();
    QTest::mousePress(list->viewport(), Qt::RightButton, {}, PlaceOf(1));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "it opens at the release";
    QTest::mouseRelease(list->viewport(), Qt::RightButton, {}, PlaceOf(1));
    QMenu& menu = Popup();
    EXPECT_EQ(menu.objectName(), "menuPopupFileList");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1U));
    std::vector<Text> names;
    QString letters;
    for (const QAction* entry : menu.actions()) {
        if (entry->isSeparator())
            continue;
        names.push_back(FromQt(entry->objectName()));
        EXPECT_EQ(entry->isVisible(), entry->objectName() != "mPopupCompNr");
        const QChar letter = entry->text().at(entry->text().indexOf('&') + 1).toLower();
        EXPECT_FALSE(letters.contains(letter)) << FromQt(entry->text());
        letters += letter;
    }
    EXPECT_THAT(names, ElementsAre("mPopupCopyOptions", "mPopupIcon", "mPopupCompNr",
                                   "mPopupDestDir", "mPopupSrcFile", "mPopupDeleteFiles",
                                   "mPopupShowDoc", "mPopupFileInfo"));
    for (const char* name : {"mPopupCopyOptions", "mPopupIcon", "mPopupDestDir", "mPopupSrcFile",
                             "mPopupDeleteFiles", "mPopupShowDoc", "mPopupFileInfo"})
        EXPECT_TRUE(menu.findChild<QAction*>(name)->isEnabled()) << name;
    SavePicture(menu, "menuPopupFileList");
    menu.close();
}

TEST_F(PerFileCommands, AreRunFromThePopupMenu)
{
    session.project.FileComponents[4] = {.Comp = 1, .CompName = "Fem"};
    OpenRows();
    for (const auto& [entry, dialog] :
         {std::pair{"mPopupCopyOptions", "DlgCopyOptions"}, std::pair{"mPopupIcon", "DlgIcon"},
          std::pair{"mPopupFileInfo", "DlgFileInfo"},
          std::pair{"mPopupSrcFile", "DlgChangeSrcPath"},
          std::pair{"mPopupShowDoc", "DlgShowDocAfter"},
          std::pair{"mPopupCompNr", "DlgChCompNr"}}) {
        QMenu& menu = OpenPopup(1);
        Text shown;
        OnNextDialog([&](QDialog& opened) { shown = FromQt(opened.objectName()); });
        QAction* action = menu.findChild<QAction*>(entry);
        menu.setActiveAction(action);
        QTest::keyClick(&menu, Qt::Key_Return);
        EXPECT_EQ(shown, dialog);
        QApplication::processEvents();
    }
    QMenu& menu = OpenPopup(1);
    ask.Expect({BoxKind::YesNo, "Fillista", "", Answer::Yes});
    menu.findChild<QAction*>("mPopupDeleteFiles")->trigger();
    EXPECT_EQ(session.project.Files.rows.size(), 3U);
    menu.close();
}

TEST_F(PerFileCommands, KeepSeveralSelectedRowsUnderThePopupMenu)
{
    OpenRows();
    form->ShowFileList({1, 2});
    OpenPopup(2).close();
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1U, 2U));
    OpenPopup(3).close();
    EXPECT_THAT(form->SelectedRows(), ElementsAre(3U));
}

TEST_F(PerFileCommands, OfferComponentsWhileOneIsInUse)
{
    session.project.FileComponents[4].Comp = 1;
    OpenRows();
    QMenu& menu = OpenPopup(1);
    EXPECT_TRUE(menu.findChild<QAction*>("mPopupCompNr")->isVisible());
    menu.close();
}

TEST_F(PerFileCommands, StandInThePopupMenuOfTheMenuKey)
{
    OpenRows();
    form->ShowFileList({1});
    const QPoint anywhere(3, 3);
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, anywhere, list->mapToGlobal(anywhere));
    QApplication::sendEvent(list->viewport(), &byKey);
    QMenu& menu = Popup();
    EXPECT_TRUE(menu.geometry().contains(list->viewport()->mapToGlobal(PlaceOf(1)) + QPoint(2, 2)));
    menu.close();
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, anywhere, list->mapToGlobal(anywhere));
    QApplication::sendEvent(list->viewport(), &byMouse);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "that is the release's";
}

} // namespace
} // namespace quillon::test
