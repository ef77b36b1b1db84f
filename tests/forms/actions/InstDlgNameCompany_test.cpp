#include "actions/forms/previews/InstDlgNameCompany.h"

#include "actions/forms/pages/DlgNameCompany.h"
#include "forms/preview_test.h"

namespace quillon::test {
namespace {

constexpr const char* kAddressFields[] = {"tUserAddress", "tUserPhone", "tUserFax", "tUseremail"};

class InstDlgNameCompanyTest : public PreviewTest {};

TEST_F(InstDlgNameCompanyTest, AsksForNameAndCompany)
{
    InstDlgNameCompany form({}, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Registrering");
    EXPECT_EQ(Said(form.sText), "Skriv in ditt namn och företag.");
    EXPECT_EQ(TextIn(form, "tUserName"), "");
    EXPECT_EQ(TextIn(form, "tUserCompany"), "");
    EXPECT_TRUE(form.tUserName->hasFocus());
    for (const char* name : kAddressFields)
        EXPECT_EQ(form.findChild<QLineEdit*>(name), nullptr) << name;
}

TEST_F(InstDlgNameCompanyTest, AsksForTheAddressToo)
{
    InstDlgNameCompany form({.asksAddress = true}, session, nullptr);
    ShowActive(form);
    EXPECT_EQ(Said(form.sText), "Skriv in ditt namn, företag och adressuppgifter.");
    for (const char* name : kAddressFields)
        EXPECT_TRUE(Find<QLineEdit>(form, name).isVisible()) << name;
}

TEST_F(InstDlgNameCompanyTest, ProposesWhatTheProjectHolds)
{
    session.project.LicenseData = {.UserCompany = "Bolaget",
                                   .UserName = "Kim",
                                   .UserAddress = "Gatan 1",
                                   .UserPhone = "08-1",
                                   .UserFax = "08-2",
                                   .Useremail = "kim@bolaget"};
    InstDlgNameCompany form({.asksAddress = true}, session, nullptr);
    const std::pair<const char*, const char*> fields[] = {
        {"tUserName", "Kim"},   {"tUserCompany", "Bolaget"}, {"tUserAddress", "Gatan 1"},
        {"tUserPhone", "08-1"}, {"tUserFax", "08-2"},        {"tUseremail", "kim@bolaget"}};
    for (const auto& [name, value] : fields)
        EXPECT_EQ(TextIn(form, name), value) << name;
}

TEST_F(InstDlgNameCompanyTest, TakesTheRegisteredUserOfThisMachine)
{
    InstDlgNameCompany form({.takesRegisteredOwner = true}, session, nullptr);
    EXPECT_EQ(TextIn(form, "tUserName"), "Ulla Ek");
    EXPECT_EQ(TextIn(form, "tUserCompany"), "Firma AB");
}

TEST_F(InstDlgNameCompanyTest, KeepsTheProjectSProposalWhereTheMachineKnowsNone)
{
    session.project.LicenseData.UserName = "Kim";
    session.project.LicenseData.UserCompany = "Bolaget";
    machine.machine.owner = {.owner = "", .organization = "Firma AB"};
    InstDlgNameCompany form({.takesRegisteredOwner = true}, session, nullptr);
    EXPECT_EQ(TextIn(form, "tUserName"), "Kim");
    EXPECT_EQ(TextIn(form, "tUserCompany"), "Firma AB");
}

TEST_F(InstDlgNameCompanyTest, ShowsItsOwnPicture)
{
    machine.files.Put("C:\\egen.bmp", Bitmap(Qt::red, 164, 314));
    InstDlgNameCompany form({.bitmap = "C:\\egen.bmp"}, session, nullptr);
    ShowActive(form);
    const QImage shown = form.PictureDlg->grab().toImage();
    EXPECT_EQ(QColor(PixelAt(shown, form.PictureDlg->rect().center())), QColor(Qt::red));
}

TEST_F(InstDlgNameCompanyTest, ClosesByAnyButton)
{
    InstDlgNameCompany form({.asksAddress = true}, session, nullptr);
    ExpectEachButtonCloses(form, {"cmdBack", "cmdNext", "cmdCancel"});
}

TEST_F(InstDlgNameCompanyTest, LeavesEverythingAsItWas)
{
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "InstDlgNameCompany");
        Type(dialog, "tUserName", "Någon");
        Click(dialog, "cmdNext");
    });
    ShowInstDlgNameCompany(session, {.takesRegisteredOwner = true}, nullptr);
    EXPECT_EQ(session.project.LicenseData.UserName, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(InstDlgNameCompanyTest, ShowsTheEditorsFieldsAsTheyStand)
{
    DlgNameCompany editor(session, nullptr);
    ShowActive(editor);
    editor.cExtendedInfo->setChecked(true);
    editor.cGetNameCompanyFromRegistry->setChecked(true);
    ShowPreviewOf(editor, "InstDlgNameCompany", [](QDialog& preview) {
        EXPECT_EQ(TextIn(preview, "tUserName"), "Ulla Ek");
        EXPECT_EQ(TextIn(preview, "tUserAddress"), "");
    });
}

TEST_F(InstDlgNameCompanyTest, LooksRight)
{
    InstDlgNameCompany all({.asksAddress = true, .takesRegisteredOwner = true}, session, nullptr);
    ShowActive(all);
    SavePicture(all, "InstDlgNameCompany");
    SaveDarkPicture(all, "InstDlgNameCompany");
    InstDlgNameCompany few({}, session, nullptr);
    ShowActive(few);
    SavePicture(few, "InstDlgNameCompany-few");
}

} // namespace
} // namespace quillon::test
