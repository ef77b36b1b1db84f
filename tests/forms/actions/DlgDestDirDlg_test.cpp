#include "actions/forms/pages/DlgDestDirDlg.h"

#include "actions/forms/DlgDestDirAdvUpdate.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgDestDirDlgTest : public WindowTest {
protected:
    section::DialogBoxData& data = session.project.DialogBoxData;
    section::Updates& updates = session.project.Updates;
};

TEST_F(DlgDestDirDlgTest, ShowsANewProject)
{
    DlgDestDirDlg form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Destinationskatalog");
    EXPECT_EQ(form.cShowDiskSpaceDirectly->text(),
              "&Nödvändigt och ledigt diskutrymme visas direkt i dialogrutan");
    EXPECT_FALSE(form.cShowDiskSpaceDirectly->isChecked());
    EXPECT_TRUE(form.cShowDiskSpaceButton->isChecked());
    EXPECT_FALSE(form.cHandleUpdate->isChecked());
    EXPECT_FALSE(form.cWarnIfDestDirExists->isChecked());
    EXPECT_EQ(TextIn(form, "tUpdateReferenceFile"), "");
    EXPECT_EQ(form.tUpdateReferenceFile->maxLength(), 79);
    EXPECT_FALSE(form.Accepted());
    const section::DialogBoxData before = data;
    Click(form, "cmdOK");
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(data.DestDirShowSizeInfo, before.DestDirShowSizeInfo);
    EXPECT_EQ(data.DestDirShowSizeInfoButton, before.DestDirShowSizeInfoButton);
    EXPECT_EQ(data.WarnIfDestDirExists, before.WarnIfDestDirExists);
    EXPECT_EQ(updates.HandleUpdate, kOff);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgDestDirDlgTest, StoresEachTickInItsOwnField)
{
    struct Case {
        const char* box;
        Flag& field;
    };
    for (const Case& one : {Case{"cShowDiskSpaceDirectly", data.DestDirShowSizeInfo},
                            Case{"cShowDiskSpaceButton", data.DestDirShowSizeInfoButton},
                            Case{"cHandleUpdate", updates.HandleUpdate},
                            Case{"cWarnIfDestDirExists", data.WarnIfDestDirExists}}) {
        const Flag before = one.field;
        DlgDestDirDlg form(session, nullptr);
        ShowActive(form);
        EXPECT_EQ(Find<QCheckBox>(form, one.box).isChecked(), before != kOff) << one.box;
        Click(form, one.box);
        Click(form, "cmdOK");
        EXPECT_EQ(one.field, before == kOff ? kOn : kOff) << one.box;
    }
    EXPECT_EQ(data.DestDriveShowSizeInfo, kOff);
    EXPECT_EQ(data.DestDriveShowSizeInfoButton, kOn);
}

TEST_F(DlgDestDirDlgTest, HandlesUpdatesOnceTheyAreTicked)
{
    updates.UpdateReferenceFile = "PROG.EXE";
    DlgDestDirDlg form(session, nullptr);
    ShowActive(form);
    EXPECT_FALSE(form.tUpdateReferenceFile->isEnabled());
    EXPECT_FALSE(form.cmdAdvUpdate->isEnabled());
    Click(form, "cHandleUpdate");
    EXPECT_TRUE(form.tUpdateReferenceFile->isEnabled());
    EXPECT_TRUE(form.cmdAdvUpdate->isEnabled());
    Click(form, "cHandleUpdate");
    EXPECT_FALSE(form.tUpdateReferenceFile->isEnabled());
    Click(form, "cmdOK");
    EXPECT_EQ(updates.UpdateReferenceFile, "PROG.EXE") << "a switch takes no text away";
}

TEST_F(DlgDestDirDlgTest, PutsTheReferenceFileInCapitalsWhenItsFieldIsLeft)
{
    updates.HandleUpdate = kOn;
    DlgDestDirDlg form(session, nullptr);
    ShowActive(form);
    Type(form, "tUpdateReferenceFile", "räkna.exe");
    EXPECT_EQ(TextIn(form, "tUpdateReferenceFile"), "räkna.exe");
    form.cmdCancel->setFocus();
    EXPECT_EQ(TextIn(form, "tUpdateReferenceFile"), "RÄKNA.EXE");
    EXPECT_EQ(updates.UpdateReferenceFile, "");
    // Enter leaves the field, too.
    Type(form, "tUpdateReferenceFile", "prog.dll");
    QTest::keyClick(form.tUpdateReferenceFile, Qt::Key_Return);
    EXPECT_EQ(updates.UpdateReferenceFile, "PROG.DLL");
}

TEST_F(DlgDestDirDlgTest, TakesTheAdvancedValuesWhenBothAreLeftWithOk)
{
    struct Case {
        const char* inner;
        const char* outer;
        bool isStored;
    };
    updates.HandleUpdate = kOn;
    for (const Case& one :
         {Case{"cmdCancel", "cmdCancel", false}, Case{"cmdOK", "cmdCancel", false},
          Case{"cmdCancel", "cmdOK", false}, Case{"cmdOK", "cmdOK", true}}) {
        session.state.ProjectIsDirty = kOff;
        DlgDestDirDlg form(session, nullptr);
        ShowActive(form);
        OnNextDialog([&](QDialog& advanced) {
            Find<QComboBox>(advanced, "ComboHKEY").setCurrentIndex(2);
            Type(advanced, "tSubKey", "\\SOFTWARE\\Firma");
            Type(advanced, "tValueName", "Katalog");
            Click(advanced, "cAlwaysUseUserDefKey");
            Click(advanced, one.inner);
        });
        Click(form, "cmdAdvUpdate");
        EXPECT_EQ(updates.AdvUpdateRegSubKey, "") << "not before the form itself is left";
        Click(form, one.outer);
        EXPECT_EQ(updates.AdvUpdateRegHKEYIndex, one.isStored ? 2 : 0);
        EXPECT_EQ(updates.AdvUpdateRegSubKey, one.isStored ? "\\SOFTWARE\\Firma" : "");
        EXPECT_EQ(updates.AdvUpdateRegValueName, one.isStored ? "Katalog" : "");
        EXPECT_EQ(updates.AdvUpdateRegAlwaysUseUserDefKey, one.isStored ? kOn : kOff);
        // Kept: any OK marks the project, also one whose values are given up afterwards.
        const bool isMarked = one.inner == Text("cmdOK") || one.outer == Text("cmdOK");
        EXPECT_EQ(session.state.ProjectIsDirty, isMarked ? kOn : kOff);
    }
}

TEST_F(DlgDestDirDlgTest, ShowsTheAdvancedValuesAsTheyWereLeft)
{
    updates.HandleUpdate = kOn;
    DlgDestDirDlg form(session, nullptr);
    ShowActive(form);
    OnNextDialog([](QDialog& advanced) {
        Type(advanced, "tValueName", "Katalog");
        Click(advanced, "cmdOK");
    });
    Click(form, "cmdAdvUpdate");
    OnNextDialog([](QDialog& advanced) {
        EXPECT_EQ(TextIn(advanced, "tValueName"), "Katalog");
        Type(advanced, "tValueName", "Annat");
        Click(advanced, "cmdCancel");
    });
    Click(form, "cmdAdvUpdate");
    Click(form, "cmdOK");
    EXPECT_EQ(updates.AdvUpdateRegValueName, "Katalog");
}

TEST_F(DlgDestDirDlgTest, ChangesNothingOnCancel)
{
    updates.HandleUpdate = kOn;
    DlgDestDirDlg form(session, nullptr);
    ShowActive(form);
    Type(form, "tUpdateReferenceFile", "a.exe");
    for (const char* box : {"cShowDiskSpaceDirectly", "cShowDiskSpaceButton", "cHandleUpdate",
                            "cWarnIfDestDirExists"})
        Click(form, box);
    Click(form, "cmdCancel");
    EXPECT_FALSE(form.Accepted());
    EXPECT_EQ(data.DestDirShowSizeInfo, kOff);
    EXPECT_EQ(data.DestDirShowSizeInfoButton, kOn);
    EXPECT_EQ(data.WarnIfDestDirExists, kOff);
    EXPECT_EQ(updates.HandleUpdate, kOn);
    EXPECT_EQ(updates.UpdateReferenceFile, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgDestDirDlgTest, LooksRight)
{
    updates.HandleUpdate = kOn;
    updates.UpdateReferenceFile = "RAKNA.EXE";
    DlgDestDirDlg form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.cShowDiskSpaceDirectly->hasFocus());
    SavePicture(form, "DlgDestDirDlg");
    SaveDarkPicture(form, "DlgDestDirDlg");
}

class DlgDestDirAdvUpdateTest : public WindowTest {
protected:
    section::Updates& updates = session.project.Updates;
};

TEST_F(DlgDestDirAdvUpdateTest, ShowsAndStoresItsFields)
{
    updates.AdvUpdateRegHKEYIndex = 4;
    updates.AdvUpdateRegSubKey = "\\Sub";
    updates.AdvUpdateRegValueName = "Namn";
    updates.AdvUpdateRegAlwaysUseUserDefKey = kOn;
    DlgDestDirAdvUpdate form(updates, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Uppdateringar - Avancerat");
    EXPECT_EQ(form.findChild<QGroupBox*>()->title(), "Registry - nyckel/värde");
    EXPECT_EQ(form.cAlwaysUseUserDefKey->text(),
              "Hämta alltid uppdateringsinformation från ovanstående nyckel ifall den existerar");
    bool hasSentence = false;
    for (const QLabel* label : form.findChildren<QLabel*>())
        hasSentence |= label->text() ==
                       "Om inte uppdateringinformation finns vid det normala stället i Registry "
                       "kan du här ange ett alternativt ställe som ska avläsas istället.";
    EXPECT_TRUE(hasSentence);
    QStringList roots;
    for (int i = 0; i < form.ComboHKEY->count(); ++i)
        roots << form.ComboHKEY->itemText(i);
    EXPECT_EQ(roots, QStringList({"HKEY_CLASSES_ROOT", "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE",
                                  "HKEY_USERS", "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA"}));
    EXPECT_EQ(form.ComboHKEY->currentIndex(), 4);
    EXPECT_EQ(TextIn(form, "tSubKey"), "\\Sub");
    EXPECT_EQ(form.tSubKey->maxLength(), 254);
    EXPECT_EQ(TextIn(form, "tValueName"), "Namn");
    EXPECT_EQ(form.tValueName->maxLength(), 199);
    EXPECT_TRUE(form.cAlwaysUseUserDefKey->isChecked());
    form.ComboHKEY->setCurrentIndex(5);
    Type(form, "tSubKey", "\\Annan");
    Type(form, "tValueName", "");
    Click(form, "cAlwaysUseUserDefKey");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(updates.AdvUpdateRegHKEYIndex, 5);
    EXPECT_EQ(updates.AdvUpdateRegSubKey, "\\Annan");
    EXPECT_EQ(updates.AdvUpdateRegValueName, "");
    EXPECT_EQ(updates.AdvUpdateRegAlwaysUseUserDefKey, kOff);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgDestDirAdvUpdateTest, KeepsARootThatIsNotInItsList)
{
    for (const Integer index : {Integer{-1}, Integer{6}, Integer{32767}}) {
        updates.AdvUpdateRegHKEYIndex = index;
        DlgDestDirAdvUpdate form(updates, session, nullptr);
        ShowActive(form);
        EXPECT_EQ(form.ComboHKEY->currentIndex(), -1);
        Click(form, "cmdOK");
        EXPECT_EQ(updates.AdvUpdateRegHKEYIndex, index);
    }
}

TEST_F(DlgDestDirAdvUpdateTest, ChangesNothingOnCancel)
{
    DlgDestDirAdvUpdate form(updates, session, nullptr);
    ShowActive(form);
    form.ComboHKEY->setCurrentIndex(3);
    Type(form, "tSubKey", "\\A");
    Click(form, "cAlwaysUseUserDefKey");
    Click(form, "cmdCancel");
    EXPECT_FALSE(form.Accepted());
    EXPECT_EQ(updates.AdvUpdateRegHKEYIndex, 0);
    EXPECT_EQ(updates.AdvUpdateRegSubKey, "");
    EXPECT_EQ(updates.AdvUpdateRegAlwaysUseUserDefKey, kOff);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgDestDirAdvUpdateTest, LooksRight)
{
    updates.AdvUpdateRegHKEYIndex = 2;
    updates.AdvUpdateRegSubKey = "\\SOFTWARE\\Firma\\Räkna";
    updates.AdvUpdateRegValueName = "Installationskatalog";
    DlgDestDirAdvUpdate form(updates, session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.ComboHKEY->hasFocus());
    SavePicture(form, "DlgDestDirAdvUpdate");
    SaveDarkPicture(form, "DlgDestDirAdvUpdate");
}

} // namespace
} // namespace quillon::test
