#include "shell/forms/DlgCreateFoldersAtMyDoc.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

constexpr const char* kFolder = "C:\\Mina dokument\\Quillon\\Mina projekt";

class DlgCreateFoldersAtMyDocTest : public WindowTest {
protected:
    /// The offer, answered by `use`.
    void Offer(std::function<void(QDialog&)> use)
    {
        session.ProjectsFolder = "C:\\Quillon\\Projects";
        OnNextDialog(std::move(use));
        OfferProjectsFolder(session, "", nullptr);
        EXPECT_EQ(session.Settings.WindowOptions.MyDocFolderAutoCreateDone, kOn);
    }
};

TEST_F(DlgCreateFoldersAtMyDocTest, ShowsTheWholePath)
{
    DlgCreateFoldersAtMyDoc form(session);
    EXPECT_EQ(form.lFolder->text(), kFolder);
}

TEST_F(DlgCreateFoldersAtMyDocTest, MakesTheFoldersOnYes)
{
    Offer([](QDialog& form) { Click(form, "CmdYes"); });
    EXPECT_TRUE(machine.files.DirExists(kFolder));
    EXPECT_EQ(session.ProjectsFolder, kFolder);
}

TEST_F(DlgCreateFoldersAtMyDocTest, MakesNothingOnNo)
{
    Offer([](QDialog& form) { Click(form, "CmdNo"); });
    EXPECT_FALSE(machine.files.DirExists(kFolder));
    EXPECT_EQ(session.ProjectsFolder, "C:\\Quillon\\Projects");
}

TEST_F(DlgCreateFoldersAtMyDocTest, TakesEnterForYesAndEscForNo)
{
    Offer([](QDialog& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    EXPECT_FALSE(machine.files.DirExists(kFolder));
    Offer([](QDialog& form) { QTest::keyClick(&form, Qt::Key_Return); });
    EXPECT_TRUE(machine.files.DirExists(kFolder));
}

TEST_F(DlgCreateFoldersAtMyDocTest, LooksRight)
{
    DlgCreateFoldersAtMyDoc form(session);
    ShowActive(form);
    SavePicture(form, "DlgCreateFoldersAtMyDoc");
    SaveDarkPicture(form, "DlgCreateFoldersAtMyDoc");
}

TEST_F(DlgCreateFoldersAtMyDocTest, ShowsWhereTheFolderTrulyLies)
{
    EXPECT_EQ(DlgCreateFoldersAtMyDoc(session).lHostFolder, nullptr);
    DlgCreateFoldersAtMyDoc form(session, nullptr, "/home/ulla/Dokument/Quillon/Mina projekt");
    ShowActive(form);
    EXPECT_EQ(form.lFolder->text(), kFolder);
    EXPECT_EQ(form.lHostFolder->text(), "/home/ulla/Dokument/Quillon/Mina projekt");
    SavePicture(form, "DlgCreateFoldersAtMyDoc-true");
    SaveDarkPicture(form, "DlgCreateFoldersAtMyDoc-true");
}

} // namespace
} // namespace quillon::test
