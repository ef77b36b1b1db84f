#include "filelist/forms/DlgShowDestDirectories.h"

#include "filelist/list_builder.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

std::vector<Text> Directories(DlgShowDestDirectories& form)
{
    std::vector<Text> shown;
    for (int row = 0; row < form.lbDirectories->count(); ++row)
        shown.push_back(FromQt(form.lbDirectories->item(row)->text()));
    return shown;
}

TEST(DlgShowDestDirectoriesTest, ShowsEachDirectoryOnceAndTheirNumber)
{
    DlgShowDestDirectories form(nullptr);
    form.FillListboxWithDirectories(
        MakeList({MakeRow("a", "%WINDIR"), MakeRow("b", "%DESTDIR\\Bilder"),
                  MakeRow("c", "%DESTDIR"), MakeRow("d", ""), MakeRow("e", "%WINDIR")}));
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Destinationskataloger");
    EXPECT_EQ(Directories(form), (std::vector<Text>{"%DESTDIR", "%DESTDIR\\Bilder", "%WINDIR"}));
    EXPECT_EQ(form.sNrDirs->text(), "3");
    EXPECT_TRUE(form.lbDirectories->hasFocus());
    SavePicture(form, "DlgShowDestDirectories");
    SaveDarkPicture(form, "DlgShowDestDirectories");
    form.FillListboxWithDirectories(MakeList({MakeRow("a", "%FONTDIR")}));
    EXPECT_EQ(Directories(form), std::vector<Text>{"%FONTDIR"}) << "in place of the former ones";
    EXPECT_EQ(form.sNrDirs->text(), "1");
}

TEST(DlgShowDestDirectoriesTest, ShowsNoughtForAnEmptyList)
{
    DlgShowDestDirectories form(nullptr);
    form.FillListboxWithDirectories({});
    EXPECT_EQ(form.lbDirectories->count(), 0);
    EXPECT_EQ(form.sNrDirs->text(), "0");
}

TEST(DlgShowDestDirectoriesTest, ClosesByButtonEnterAndEsc)
{
    for (const int key : {0, int(Qt::Key_Return), int(Qt::Key_Escape)}) {
        DlgShowDestDirectories form(nullptr);
        ShowActive(form);
        if (key == 0)
            Click(form, "cmdOK");
        else
            QTest::keyClick(form.lbDirectories, static_cast<Qt::Key>(key));
        EXPECT_FALSE(form.isVisible()) << key;
    }
}

} // namespace
} // namespace quillon::test
