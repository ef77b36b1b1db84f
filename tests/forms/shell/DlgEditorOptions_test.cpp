#include "shell/forms/DlgEditorOptions.h"

#include "shell/fake_window.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgEditorOptionsTest : public WindowTest {
protected:
    // Every setting with the box that shows it.
    struct Box {
        const char* name;
        Flag* value;
    };
    std::vector<Box> Boxes()
    {
        ListOptions& list = session.Settings.ListOptions;
        HideTabs& hide = session.Settings.HideTabs;
        CreateOptions& create = session.options;
        return {
            {"cShowAlsoSourcePathInFileList", &list.ShowAlsoSourcePathInFileList},
            {"cFileListShowGridLines", &list.ShowGridLinesInFileList},
            {"cOldStyleAddDialogBox", &list.OldStyleAddDialogBox},
            {"cHideRegistry", &hide.HideTabRegistry},
            {"cHideINIFiles", &hide.HideTabINIFiles},
            {"cHideComponents", &hide.HideTabComponents},
            {"cUpdateSetupDateTime", &create.UpdateSetupExeDateTime},
            {"cPlaceCompressedFilesInFolderSetupFiles",
             &create.PlaceCompressedFilesInFolderSetupFiles},
            {"cCreateFolderStructureInFolderSetupFiles",
             &create.CreateFolderStructureInFolderSetupFiles},
            {"cUseTempZipPath", &create.UseTempZipPath},
            {"cCreateZipLogFile", &create.CreateZipLogFile},
        };
    }
};

TEST_F(DlgEditorOptionsTest, ShowsTheDefaultsOfANewMachine)
{
    DlgEditorOptions form(session);
    for (const Box& box : Boxes())
        EXPECT_EQ(Find<QCheckBox>(form, box.name).isChecked(),
                  Text(box.name) == "cPlaceCompressedFilesInFolderSetupFiles")
            << box.name;
    EXPECT_EQ(form.cbCBarsStyle->currentIndex(), 3);
}

TEST_F(DlgEditorOptionsTest, ShowsAndStoresEachSettingByItsOwnBox)
{
    for (std::size_t i = 0; i < Boxes().size(); ++i) {
        for (const Box& box : Boxes())
            *box.value = kOff;
        const Box chosen = Boxes()[i];
        *chosen.value = kOn;
        DlgEditorOptions form(session);
        for (const Box& box : Boxes()) {
            QCheckBox& shown = Find<QCheckBox>(form, box.name);
            EXPECT_EQ(shown.isChecked(), box.value == chosen.value) << box.name;
            shown.setChecked(box.value != chosen.value);
        }
        form.cmdOK->click();
        EXPECT_TRUE(form.OK);
        for (const Box& box : Boxes())
            EXPECT_EQ(*box.value, box.value == chosen.value ? kOff : kOn) << box.name;
    }
    EXPECT_EQ(session.state.ProjectIsDirty, kOff) << "options are no part of a project";
}

TEST_F(DlgEditorOptionsTest, OffersTheFourLooksByTheirIndex)
{
    session.Settings.WindowOptions.CBarsCurrentStyle = 1;
    DlgEditorOptions form(session);
    ASSERT_EQ(form.cbCBarsStyle->count(), 4);
    EXPECT_EQ(form.cbCBarsStyle->itemText(0), "Windows XP");
    EXPECT_EQ(form.cbCBarsStyle->itemText(1), "Office 2000");
    EXPECT_EQ(form.cbCBarsStyle->itemText(2), "Office XP");
    EXPECT_EQ(form.cbCBarsStyle->itemText(3), "Office 2003");
    EXPECT_EQ(form.cbCBarsStyle->currentIndex(), 1);
    form.cbCBarsStyle->setCurrentIndex(2);
    form.cmdOK->click();
    EXPECT_EQ(session.Settings.WindowOptions.CBarsCurrentStyle, 2);
}

TEST_F(DlgEditorOptionsTest, OffersAFolderStructureOnlyInTheFolderSetupFiles)
{
    DlgEditorOptions form(session);
    QCheckBox& structure = *form.cCreateFolderStructureInFolderSetupFiles;
    EXPECT_TRUE(structure.isEnabled());
    form.cPlaceCompressedFilesInFolderSetupFiles->setChecked(false);
    EXPECT_FALSE(structure.isEnabled());
    form.cPlaceCompressedFilesInFolderSetupFiles->setChecked(true);
    EXPECT_TRUE(structure.isEnabled());

    session.options.PlaceCompressedFilesInFolderSetupFiles = kOff;
    DlgEditorOptions without(session);
    EXPECT_FALSE(without.cCreateFolderStructureInFolderSetupFiles->isEnabled());
}

TEST_F(DlgEditorOptionsTest, ShowsWhatChangedInTheWindowAtOnceAndOnlyOnOk)
{
    FakeWindow window;
    for (const bool isOk : {false, true}) {
        OnNextDialog([isOk](QDialog& form) {
            Find<QCheckBox>(form, "cHideRegistry").setChecked(true);
            Click(form, isOk ? "cmdOK" : "cmdCancel");
        });
        ShowEditorOptions(session, window, nullptr);
        EXPECT_EQ(session.Settings.HideTabs.HideTabRegistry, isOk ? kOn : kOff);
        EXPECT_EQ(window.calls.size(), isOk ? 1U : 0U);
    }
    EXPECT_EQ(window.calls, (std::vector<std::string>{"settings"}));
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgEditorOptionsTest, LooksRightOnEachTab)
{
    DlgEditorOptions form(session);
    ShowActive(form);
    for (int tab = 0; tab < form.tabOptions->count(); ++tab) {
        form.tabOptions->setCurrentIndex(tab);
        SavePicture(form, "DlgEditorOptions" + std::to_string(tab + 1));
        SaveDarkPicture(form, "DlgEditorOptions" + std::to_string(tab + 1));
    }
}

} // namespace
} // namespace quillon::test
