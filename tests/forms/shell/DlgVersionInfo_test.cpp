#include "shell/forms/DlgVersionInfo.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgVersionInfoTest : public WindowTest {
protected:
    struct FieldRow {
        const char* name;
        Text section::Version::*field;
        int longest;
    };
    static constexpr FieldRow kRows[] = {
        {"tVerOrganization", &section::Version::CompanyName, 199},
        {"tVerProductName", &section::Version::ProductName, 199},
        {"tVerDescription", &section::Version::Description, 199},
        {"tVerProductVersion", &section::Version::ProductVersion, 199},
        {"tVerComments", &section::Version::Comments, 254},
    };
};

TEST_F(DlgVersionInfoTest, ShowsAndStoresTheVersionData)
{
    section::Version& version = session.project.Version;
    for (const FieldRow& row : kRows)
        version.*row.field = Text("Å ") + row.name;
    DlgVersionInfo form(session);
    for (const FieldRow& row : kRows) {
        EXPECT_EQ(TextIn(form, row.name), Text("Å ") + row.name);
        EXPECT_EQ(Find<QLineEdit>(form, row.name).maxLength(), row.longest) << row.name;
        EXPECT_NE(Find<QLineEdit>(form, row.name).accessibleName(), "") << row.name;
        Type(form, row.name, Text("Ny ") + row.name);
    }
    form.cmdOK->click();
    for (const FieldRow& row : kRows)
        EXPECT_EQ(version.*row.field, Text("Ny ") + row.name);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgVersionInfoTest, ChangesNothingOnCancel)
{
    OnNextDialog([](QDialog& form) {
        Type(form, "tVerProductName", "Nytt");
        Click(form, "cmdCancel");
    });
    ShowVersionInfo(session, nullptr);
    EXPECT_EQ(session.project.Version.ProductName, "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgVersionInfoTest, LooksRight)
{
    session.project.Version = {.CompanyName = "Firma Ängsö AB",
                               .ProductName = "Räkna",
                               .Description = "Räknar ihop månadens fakturor",
                               .ProductVersion = "2.10"};
    DlgVersionInfo form(session);
    ShowActive(form);
    EXPECT_TRUE(form.tVerOrganization->hasFocus());
    SavePicture(form, "DlgVersionInfo");
    SaveDarkPicture(form, "DlgVersionInfo");
}

} // namespace
} // namespace quillon::test
