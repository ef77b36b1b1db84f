#include "actions/forms/DlgAutoexecConfig.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgAutoexecConfigTest : public WindowTest {
protected:
    section::Lists& lists = session.project.Lists;
};

TEST_F(DlgAutoexecConfigTest, ShowsTheLinesOfTheProject)
{
    lists.AutoexecBat = "SET X=%DESTDIR\r\nPATH %PATH%";
    lists.ConfigSys = "FILES=40";
    DlgAutoexecConfig form(session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Autoexec.bat & Config.sys");
    EXPECT_EQ(form.tAUTOEXEC->toPlainText(), "SET X=%DESTDIR\nPATH %PATH%");
    EXPECT_EQ(form.tCONFIG->toPlainText(), "FILES=40");
    EXPECT_TRUE(form.tAUTOEXEC->hasFocus());
    QStringList captions;
    for (const auto* frame : form.findChildren<QGroupBox*>())
        captions << frame->title();
    EXPECT_EQ(captions, QStringList({"&AUTOEXEC.BAT", "&CONFIG.SYS"}));
    captions.clear();
    for (const auto* label : form.findChildren<QLabel*>())
        if (label->buddy())
            captions << label->text();
    EXPECT_EQ(captions, QStringList({"Lägg till dessa rader:", "Lägg till dessa rader:"}));
    SavePicture(form, "DlgAutoexecConfig");
    SaveDarkPicture(form, "DlgAutoexecConfig");
}

TEST_F(DlgAutoexecConfigTest, LeadsFromTheFramesToTheirLines)
{
    DlgAutoexecConfig form(session, nullptr);
    ShowActive(form);
    QTest::keyClick(form.tAUTOEXEC, Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(form.tCONFIG->hasFocus());
    QTest::keyClick(form.tCONFIG, Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(form.tAUTOEXEC->hasFocus());
}

TEST_F(DlgAutoexecConfigTest, StoresAnyText)
{
    DlgAutoexecConfig form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.tAUTOEXEC, "rem %destdir");
    QTest::keyClick(form.tAUTOEXEC, Qt::Key_Return);
    TypeKeys(*form.tCONFIG, "vad som helst");
    EXPECT_EQ(lists.AutoexecBat, "");
    Click(form, "cmdOK");
    EXPECT_EQ(lists.AutoexecBat, "rem %destdir\r\n");
    EXPECT_EQ(lists.ConfigSys, "vad som helst");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgAutoexecConfigTest, ChangesNothingOnCancel)
{
    lists.ConfigSys = "FILES=40";
    DlgAutoexecConfig form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.tAUTOEXEC, "x");
    TypeKeys(*form.tCONFIG, "y");
    Click(form, "cmdCancel");
    EXPECT_EQ(lists.AutoexecBat, "");
    EXPECT_EQ(lists.ConfigSys, "FILES=40");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgAutoexecConfigTest, TellsALineThatTheProjectFileWouldNotGiveBack)
{
    DlgAutoexecConfig form(session, nullptr);
    ShowActive(form);
    TypeKeys(*form.tAUTOEXEC, "[ConfigSys]");
    EXPECT_TRUE(form.sAUTOEXECWarning->isVisible());
    EXPECT_FALSE(form.sCONFIGWarning->isVisible());
    TypeKeys(*form.tCONFIG, "....");
    EXPECT_TRUE(form.sCONFIGWarning->isVisible());
}

} // namespace
} // namespace quillon::test
