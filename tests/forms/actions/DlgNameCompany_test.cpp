#include "actions/forms/pages/DlgNameCompany.h"

#include "support/bitmap_maker.h"
#include "support/window_test.h"
#include "ui/controls/PictureView.h"

namespace quillon::test {
namespace {

constexpr const char* kStandard = "C:\\Quillon\\Res\\SetupDef.bmp";

class DlgNameCompanyTest : public WindowTest {
protected:
    DlgNameCompanyTest() { machine.files.Put(kStandard, Bitmap(Qt::darkBlue)); }

    section::DialogBoxData& data = session.project.DialogBoxData;
};

TEST_F(DlgNameCompanyTest, StoresEachTickAsAFlag)
{
    for (const bool extended : {false, true})
        for (const bool fromRegistry : {false, true}) {
            data.NameCompanyExtendedInfo = data.GetNameCompanyFromRegistry = kOff;
            DlgNameCompany form(session, nullptr);
            ShowActive(form);
            EXPECT_EQ(form.windowTitle(), "Registrering (lokalt)");
            EXPECT_FALSE(form.cExtendedInfo->isChecked());
            EXPECT_FALSE(form.cGetNameCompanyFromRegistry->isChecked());
            if (extended)
                Click(form, "cExtendedInfo");
            if (fromRegistry)
                Click(form, "cGetNameCompanyFromRegistry");
            Click(form, "cmdOK");
            EXPECT_TRUE(form.Accepted());
            EXPECT_EQ(data.NameCompanyExtendedInfo, extended ? kOn : kOff);
            EXPECT_EQ(data.GetNameCompanyFromRegistry, fromRegistry ? kOn : kOff);

            DlgNameCompany again(session, nullptr);
            EXPECT_EQ(again.cExtendedInfo->isChecked(), extended);
            EXPECT_EQ(again.cGetNameCompanyFromRegistry->isChecked(), fromRegistry);
        }
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgNameCompanyTest, ChoosesAPictureForThePageAlone)
{
    machine.files.Put("D:\\sida.bmp", Bitmap(Qt::red));
    ask.choices = {{{"D:\\sida.bmp"}}};
    DlgNameCompany form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(Find<QLabel>(form, "sBitmapFilename").text(), kStandard);
    Click(form, "cmdSelectBitmap");
    EXPECT_EQ(Find<QLabel>(form, "sBitmapFilename").text(), "D:\\sida.bmp");
    EXPECT_TRUE(static_cast<PictureView*>(form.findChild<QWidget*>("PictureBitmap"))->HasPicture());
    Click(form, "cmdOK");
    EXPECT_EQ(data.NameCompanyDlgBitmap, "D:\\sida.bmp");
    EXPECT_EQ(data.WelcomeDlgBitmap, kStandard);
    EXPECT_EQ(session.project.DialogBoxes.DlgBitmap, kStandard);
}

TEST_F(DlgNameCompanyTest, GoesBackToTheStandardPicture)
{
    data.NameCompanyDlgBitmap = "D:\\annan.bmp";
    DlgNameCompany form(session, nullptr);
    ShowActive(form);
    Click(form, "cmdStdBitmap");
    Click(form, "cmdOK");
    EXPECT_EQ(data.NameCompanyDlgBitmap, kStandard);
}

TEST_F(DlgNameCompanyTest, ChangesNothingOnCancel)
{
    ask.choices = {{{"D:\\sida.bmp"}}};
    DlgNameCompany form(session, nullptr);
    ShowActive(form);
    Click(form, "cExtendedInfo");
    Click(form, "cGetNameCompanyFromRegistry");
    Click(form, "cmdSelectBitmap");
    Click(form, "cmdCancel");
    EXPECT_FALSE(form.Accepted());
    EXPECT_EQ(data.NameCompanyExtendedInfo, kOff);
    EXPECT_EQ(data.GetNameCompanyFromRegistry, kOff);
    EXPECT_EQ(data.NameCompanyDlgBitmap, kStandard);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgNameCompanyTest, LooksRight)
{
    DlgNameCompany form(session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.cExtendedInfo->hasFocus());
    SavePicture(form, "DlgNameCompany");
    SaveDarkPicture(form, "DlgNameCompany");
}

} // namespace
} // namespace quillon::test
