// The two pages that ask for a place: a folder or a drive.
#include "actions/forms/previews/InstDlgDestDir.h"

#include "actions/forms/pages/DiskSpacePart.h"
#include "actions/forms/pages/DlgDestDirDlg.h"
#include "actions/forms/pages/DlgDestDriveDlg.h"
#include "actions/forms/previews/InstDlgDestDrive.h"
#include "forms/preview_test.h"

namespace quillon::test {
namespace {

constexpr DiskSpacePreview kAllSpace{.showsSpace = true, .hasSpaceButton = true};
constexpr char kSpaceOfC[] = "Nödvändigt diskutrymme: 12,0 MB\r\nLedigt diskutrymme: 100,0 MB";

class PlacePreviewTest : public PreviewTest {
protected:
    PlacePreviewTest()
    {
        session.project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\Receptboken";
        session.project.Files.rows.emplace_back()[Size] = "12288";
        for (char letter = 'a'; letter <= 'z'; ++letter)
            machine.files.driveKinds[Text(1, letter) + ":\\"] = DriveKind::NoRoot;
        for (const char* root : {"c:\\", "d:\\"})
            machine.files.driveKinds[root] = DriveKind::Fixed;
        machine.files.capacities["c:\\"] =
            (std::uint64_t(100) << 20U) + machine.files.Get(kStandard).size();
        machine.files.capacities["d:\\"] = std::uint64_t(2) << 30U;
    }

    static Text Shown(const QLabel* label) { return FromQt(label->text()); }
};

class InstDlgDestDirTest : public PlacePreviewTest {};

TEST_F(InstDlgDestDirTest, ProposesTheMainFolder)
{
    InstDlgDestDir form({}, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Destinationsmapp"); // one word for it, as in the setup
    EXPECT_EQ(TextIn(form, "tDestDir"), "C:\\Program\\Receptboken");
    EXPECT_FALSE(Said(form.sText).empty());
    EXPECT_TRUE(form.cmdNext->hasFocus());
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(InstDlgDestDirTest, ShowsTheSpaceAtOnceOrBehindAButton)
{
    for (const bool showsSpace : {false, true})
        for (const bool hasButton : {false, true}) {
            InstDlgDestDir form({.showsSpace = showsSpace, .hasSpaceButton = hasButton}, session,
                                nullptr);
            ShowActive(form);
            EXPECT_EQ(form.space->sNeeded != nullptr, showsSpace);
            EXPECT_EQ(form.space->sFree != nullptr, showsSpace);
            EXPECT_EQ(form.space->cmdDiskSpace != nullptr, hasButton);
        }
    InstDlgDestDir form(kAllSpace, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(Shown(form.space->sNeeded), "12,0 MB");
    EXPECT_EQ(Shown(form.space->sFree), "100,0 MB");
    ask.Expect({BoxKind::Inform, "Diskutrymme", kSpaceOfC});
    Click(form, "cmdDiskSpace");
    EXPECT_EQ(ask.shown.size(), 1U);
    EXPECT_TRUE(form.isVisible()) << "this button alone does not close";
}

TEST_F(InstDlgDestDirTest, FollowsTheFolderThatIsTyped)
{
    InstDlgDestDir form(kAllSpace, session, nullptr);
    ShowActive(form);
    Type(form, "tDestDir", "D:\\Recept");
    form.cmdBrowse->setFocus();
    EXPECT_EQ(Shown(form.space->sFree), "2 048,0 MB");
    Type(form, "tDestDir", "strunt");
    form.cmdBrowse->setFocus();
    EXPECT_EQ(Shown(form.space->sFree), "okänt");
}

TEST_F(InstDlgDestDirTest, TakesAFolderThatIsPicked)
{
    InstDlgDestDir form(kAllSpace, session, nullptr);
    ShowActive(form);
    ask.choices = {{{"D:\\Spel"}}, {}};
    Click(form, "cmdBrowse");
    EXPECT_EQ(TextIn(form, "tDestDir"), "D:\\Spel");
    EXPECT_EQ(Shown(form.space->sFree), "2 048,0 MB");
    Click(form, "cmdBrowse");
    EXPECT_EQ(TextIn(form, "tDestDir"), "D:\\Spel");
}

TEST_F(InstDlgDestDirTest, TellsOnceThatSizesCannotBeRead)
{
    session.project.Files.rows.front()[Size] = "många";
    ask.Expect({BoxKind::Critical, "Fel"});
    InstDlgDestDir form(kAllSpace, session, nullptr);
    EXPECT_EQ(ask.shown.size(), 1U);
    EXPECT_EQ(Shown(form.space->sNeeded), "0 kB");
}

TEST_F(InstDlgDestDirTest, ClosesByAnyButton)
{
    InstDlgDestDir form(kAllSpace, session, nullptr);
    ExpectEachButtonCloses(form, {"cmdBack", "cmdNext", "cmdCancel"});
}

TEST_F(InstDlgDestDirTest, LeavesEverythingAsItWas)
{
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "InstDlgDestDir");
        Type(dialog, "tDestDir", "C:\\Annat");
        Click(dialog, "cmdNext");
    });
    ShowInstDlgDestDir(session, kAllSpace, nullptr);
    EXPECT_EQ(session.project.InstallDirectories.DestinationDirectory,
              "%PROGRAMFILES\\Receptboken");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_FALSE(machine.files.DirExists("C:\\Annat"));
}

TEST_F(InstDlgDestDirTest, ShowsTheEditorsFieldsAsTheyStand)
{
    DlgDestDirDlg editor(session, nullptr);
    ShowActive(editor);
    editor.cShowDiskSpaceDirectly->setChecked(true);
    editor.cShowDiskSpaceButton->setChecked(false);
    ShowPreviewOf(editor, "InstDlgDestDir", [](QDialog& preview) {
        EXPECT_EQ(Shown(&Find<QLabel>(preview, "sNeeded")), "12,0 MB");
        EXPECT_EQ(preview.findChild<QPushButton*>("cmdDiskSpace"), nullptr);
    });
}

TEST_F(InstDlgDestDirTest, LooksRight)
{
    InstDlgDestDir form(kAllSpace, session, nullptr);
    ShowActive(form);
    SavePicture(form, "InstDlgDestDir");
    SaveDarkPicture(form, "InstDlgDestDir");
}

class InstDlgDestDriveTest : public PlacePreviewTest {};

TEST_F(InstDlgDestDriveTest, ListsTheDrivesOfThisMachine)
{
    InstDlgDestDrive form({}, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Enhet");
    ASSERT_EQ(form.lbDrives->count(), 2);
    EXPECT_EQ(form.lbDrives->item(0)->text(), "C:\\  (DISK)");
    EXPECT_EQ(form.lbDrives->item(1)->text(), "D:\\  (DISK)");
}

TEST_F(InstDlgDestDriveTest, ProposesTheDriveOfTheMainFolder)
{
    for (const auto& [folder, row] :
         {std::pair{Text("D:\\Recept"), 1}, std::pair{Text("%PROGRAMFILES\\R"), 0},
          std::pair{Text("Q:\\Borta"), 0}}) {
        session.project.InstallDirectories.DestinationDirectory = folder;
        InstDlgDestDrive form({}, session, nullptr);
        EXPECT_EQ(form.lbDrives->currentRow(), row) << folder;
    }
}

TEST_F(InstDlgDestDriveTest, ShowsTheSpaceOfTheChosenDrive)
{
    InstDlgDestDrive form(kAllSpace, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(Shown(form.space->sNeeded), "12,0 MB");
    EXPECT_EQ(Shown(form.space->sFree), "100,0 MB");
    form.lbDrives->setCurrentRow(1);
    EXPECT_EQ(Shown(form.space->sFree), "2 048,0 MB");
    form.lbDrives->setCurrentRow(0);
    ask.Expect({BoxKind::Inform, "Diskutrymme", kSpaceOfC});
    Click(form, "cmdDiskSpace");
}

TEST_F(InstDlgDestDriveTest, StandsWithoutAnyDrive)
{
    machine.files.driveKinds["c:\\"] = machine.files.driveKinds["d:\\"] = DriveKind::NoRoot;
    InstDlgDestDrive form(kAllSpace, session, nullptr);
    EXPECT_EQ(form.lbDrives->count(), 0);
    EXPECT_EQ(Shown(form.space->sFree), "okänt");
}

TEST_F(InstDlgDestDriveTest, ClosesByAnyButton)
{
    InstDlgDestDrive form(kAllSpace, session, nullptr);
    ExpectEachButtonCloses(form, {"cmdBack", "cmdNext", "cmdCancel"});
}

TEST_F(InstDlgDestDriveTest, LeavesEverythingAsItWas)
{
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "InstDlgDestDrive");
        Find<QListWidget>(dialog, "lbDrives").setCurrentRow(1);
        Click(dialog, "cmdNext");
    });
    ShowInstDlgDestDrive(session, kAllSpace, nullptr);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(InstDlgDestDriveTest, ShowsTheEditorsFieldsAsTheyStand)
{
    DlgDestDriveDlg editor(session, nullptr);
    ShowActive(editor);
    editor.cShowDiskSpaceDirectly->setChecked(false);
    editor.cShowDiskSpaceButton->setChecked(true);
    ShowPreviewOf(editor, "InstDlgDestDrive", [](QDialog& preview) {
        EXPECT_EQ(preview.findChild<QLabel*>("sNeeded"), nullptr);
        EXPECT_TRUE(Find<QPushButton>(preview, "cmdDiskSpace").isVisible());
    });
}

TEST_F(InstDlgDestDriveTest, LooksRight)
{
    InstDlgDestDrive form(kAllSpace, session, nullptr);
    ShowActive(form);
    SavePicture(form, "InstDlgDestDrive");
    SaveDarkPicture(form, "InstDlgDestDrive");
}

} // namespace
} // namespace quillon::test
