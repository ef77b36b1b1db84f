#include "filelist/forms/DlgFileInfo.h"

#include "filelist/forms/DlgMDADetails.h"
#include "filelist/list_builder.h"
#include "support/program_file.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgFileInfoTest : public WindowTest {
protected:
    FileListRow PutProgram(const Text& name)
    {
        const Text path = "C:\\Projekt\\" + name;
        machine.files.Put(path,
                          MakeProgramFile({.languages = {{{"FileVersion", "2.1.0.7"},
                                                          {"FileDescription", "Slår upp ord"},
                                                          {"LegalCopyright", "(C) Firma AB"}}},
                                           .bytesBehind = 1'234'000}),
                          {2004, 2, 29, 12, 30, 7});
        machine.files.At(path).status.isArchive = true;
        return MakeRow(name, "%DESTDIR\\Bin", LowerCase(path));
    }
};

TEST_F(DlgFileInfoTest, ShowsWhatThereIsToKnow)
{
    DlgFileInfo form(PutProgram("Ordlista.exe"), session, nullptr);
    EXPECT_EQ(form.sFilename->text(), "Ordlista.exe");
    EXPECT_TRUE(form.sFileSize->text().startsWith("1 23")) << FromQt(form.sFileSize->text());
    EXPECT_TRUE(form.sFileSize->text().endsWith(" bytes"));
    EXPECT_EQ(form.sFileDateTime->text(), "2004-02-29    12:30:07");
    EXPECT_EQ(form.sFileAttr->text(), "[Arkiv]  ");
    EXPECT_EQ(form.sFileDest->text(), "%DESTDIR\\Bin");
    EXPECT_EQ(form.sFileSrc->text(), "c:\\projekt\\ordlista.exe");
    EXPECT_EQ(form.sFileVersion->text(), "2.1.0.7");
    EXPECT_EQ(form.sFileDescription->text(), "Slår upp ord");
    EXPECT_EQ(form.sCopyright->text(), "(C) Firma AB");
    ShowActive(form);
    EXPECT_FALSE(form.cmdMDADetails->isVisible());
}

TEST_F(DlgFileInfoTest, LetsNothingBeTyped)
{
    DlgFileInfo form(PutProgram("Ordlista.exe"), session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.cmdOK->hasFocus());
    for (QLineEdit* field : form.findChildren<QLineEdit*>()) {
        EXPECT_TRUE(field->isReadOnly());
        EXPECT_NE(field->accessibleName(), "");
    }
    QTest::keyClick(&form, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgFileInfoTest, SaysThatTheFileIsGone)
{
    DlgFileInfo form(MakeRow("a.txt", "%DESTDIR", "c:\\a.txt"), session, nullptr);
    EXPECT_EQ(form.sFileSize->text(), "<Filen saknas>");
    EXPECT_EQ(form.sFileDateTime->text(), "");
}

TEST_F(DlgFileInfoTest, OffersTheOptionsOfTheDataAccessPackage)
{
    DlgFileInfo form(PutProgram("Mdac_typ.zip"), session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.cmdMDADetails->isVisible());
    SavePicture(form, "DlgFileInfo-mdac");
    OnNextDialog([](QDialog& details) {
        EXPECT_EQ(details.objectName(), "DlgMDADetails");
        EXPECT_TRUE(Find<QCheckBox>(details, "cHiddenInstall").isChecked());
        EXPECT_FALSE(Find<QCheckBox>(details, "cAskUser").isChecked());
        Click(details, "cHiddenInstall");
        Click(details, "cAskUser");
        Click(details, "cmdOK");
    });
    Click(form, "cmdMDADetails");
    EXPECT_EQ(session.project.Databases.MDAHiddenInstall, kOff);
    EXPECT_EQ(session.project.Databases.MDAAskUser, kOn);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgFileInfoTest, LooksRight)
{
    DlgFileInfo form(PutProgram("Ordlista.exe"), session, nullptr);
    ShowActive(form);
    SavePicture(form, "DlgFileInfo");
    SaveDarkPicture(form, "DlgFileInfo");
}

class DlgMDADetailsTest : public WindowTest {};

TEST_F(DlgMDADetailsTest, ChangesNothingOnCancel)
{
    DlgMDADetails form(session, nullptr);
    ShowActive(form);
    SavePicture(form, "DlgMDADetails");
    Click(form, "cAskUser");
    Click(form, "cmdCancel");
    EXPECT_EQ(session.project.Databases.MDAAskUser, kOff);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

} // namespace
} // namespace quillon::test
