#include "actions/dialog_bitmap.h"

#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

namespace quillon::test {
namespace {

TEST(ChooseDlgBitmap, AsksWhereTheUserWasLast)
{
    ScriptedAsk ask;
    ask.choices = {{{"D:\\Bilder\\sida.bmp"}}};
    Text folder = "C:\\Mina dokument";
    EXPECT_EQ(ChooseDlgBitmap(folder, ask), "D:\\Bilder\\sida.bmp");
    EXPECT_EQ(folder, "D:\\Bilder");
    ASSERT_EQ(ask.questions.size(), 1U);
    EXPECT_EQ(ask.questions[0].title, "Välj bild");
    EXPECT_EQ(ask.questions[0].folder, "C:\\Mina dokument");
    EXPECT_EQ(ask.questions[0].filter, "Bitmappar (*.bmp)|*.bmp");
    EXPECT_EQ(ask.questions[0].defaultExtension, ".bmp");
}

TEST(ChooseDlgBitmap, GivesNothingOnCancel)
{
    ScriptedAsk ask;
    ask.choices = {{}, {{""}}};
    Text folder = "C:\\Bilder";
    EXPECT_FALSE(ChooseDlgBitmap(folder, ask));
    EXPECT_FALSE(ChooseDlgBitmap(folder, ask));
    EXPECT_EQ(folder, "C:\\Bilder");
}

TEST(ChooseDlgBitmap, RefusesANameThatNoProjectCanHold)
{
    ScriptedAsk ask{{{BoxKind::Critical, "Ogiltiga tecken hittade"}, {BoxKind::Critical, "Fel"}}};
    ask.choices = {{{"C:\\日\\a.bmp"}},
                   {{"C:\\" + Text(193, 'x') + ".bmp"}},
                   {{"C:\\" + Text(192, 'x') + ".bmp"}}};
    Text folder;
    EXPECT_FALSE(ChooseDlgBitmap(folder, ask));
    EXPECT_FALSE(ChooseDlgBitmap(folder, ask));
    EXPECT_TRUE(ChooseDlgBitmap(folder, ask));
}

TEST(StandardDlgBitmap, LiesInTheFolderOfTheToolInDisplayCase)
{
    ScriptedAsk ask;
    MemoryFiles files;
    files.Put("C:\\PROGRAM\\QUILLON\\Res\\SetupDef.bmp", "");
    EXPECT_EQ(StandardDlgBitmap(files, "C:\\PROGRAM\\QUILLON", ask),
              "C:\\Program\\Quillon\\Res\\SetupDef.bmp");
}

TEST(StandardDlgBitmap, TellsWhenItIsNotThere)
{
    ScriptedAsk ask{{{BoxKind::Critical, "Fel", "Standardbilden finns inte i förväntad katalog!"}}};
    EXPECT_FALSE(StandardDlgBitmap(MemoryFiles(), "C:\\Quillon", ask));
}

TEST(StandardDlgBitmap, TellsAnUnexpectedFailure)
{
    class FailingFiles : public MemoryFiles {
        bool FileExists(const Text&) const override { throw RunError(ErrorNumber::kDeviceIo); }
    };
    ScriptedAsk ask{
        {{BoxKind::Critical, "Fel", "Oväntat fel inträffade när standardbilden skulle väljas!"}}};
    EXPECT_FALSE(StandardDlgBitmap(FailingFiles(), "C:\\Quillon", ask));
}

TEST(UseDlgBitmap, OverwritesThePicturesOfAllPages)
{
    Project project;
    project.DialogBoxData.NameCompanyDlgBitmap = "C:\\egen.bmp";
    UseDlgBitmap(project, "C:\\alla.bmp");
    const section::DialogBoxData& pages = project.DialogBoxData;
    for (const Text& bitmap :
         {project.DialogBoxes.DlgBitmap, pages.WelcomeDlgBitmap, pages.GeneralDlgBitmap,
          pages.GeneralDlgBitmap2, pages.StartInstallDlgBitmap, pages.InstallCompleteDlgBitmap,
          pages.NameCompanyDlgBitmap})
        EXPECT_EQ(bitmap, "C:\\alla.bmp");
}

} // namespace
} // namespace quillon::test
