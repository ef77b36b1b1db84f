#include "builder/forms/DlgTest.h"

#include "filelist/list_builder.h"
#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class DlgTestTest : public WindowTest {
protected:
    DlgTestTest()
    {
        machine.files.Put("C:\\Quillon\\Language\\SWEDISH.LNG", "");
        machine.files.Put("C:\\Data\\a.txt", "text");
        session.project.Files = MakeList({MakeRow("a.txt", "%DESTDIR", "c:\\data\\a.txt")});
        session.project.ProjectName.ProjectName = "Demo";
        session.project.InstallDirectories.DestinationDirectory = "C:\\Demo";
        session.project.Media.TargetMedia = 4;
    }

    /// The command, answered by `use`.
    void Test(std::function<void(QDialog&)> use)
    {
        bool isHidden = false;
        OnNextDialog([&](QDialog& dialog) {
            use(dialog);
            isHidden = !dialog.isVisible();
        });
        ShowTest(session, nullptr);
        EXPECT_TRUE(isHidden);
        EXPECT_EQ(session.state.ProjectIsDirty, kOff);
        EXPECT_EQ(session.project.Media.TargetMedia, 4);
        EXPECT_EQ(session.project.ProgramGroup.ProgramGroup, "");
    }
    static constexpr const char* kList = "C:\\Quillon\\Test\\FILELIST.INF";
};

TEST_F(DlgTestTest, StartsTheTestAndHides)
{
    Test([](QDialog& form) { Click(form, "cmdStartTest"); });
    EXPECT_THAT(machine.machine.started,
                ElementsAre(Pair("C:\\Quillon\\Test\\Qns32x.exe", "/TEST")));
    EXPECT_TRUE(machine.files.FileExists(kList));
}

TEST_F(DlgTestTest, HidesAlsoWhereTheTestFails)
{
    machine.machine.startFailure = 5;
    ask.Expect({BoxKind::Critical, "Kan ej testa",
                "Fel #5 inträffade när 32-bitars inladdaren 'QNS32X.EXE' skulle anropas!"});
    Test([](QDialog& form) { Click(form, "cmdStartTest"); });
}

TEST_F(DlgTestTest, DoesNothingOnCancel)
{
    Test([](QDialog& form) { Click(form, "cmdCancel"); });
    EXPECT_THAT(machine.machine.started, IsEmpty());
    EXPECT_FALSE(machine.files.FileExists(kList));
}

TEST_F(DlgTestTest, TakesEnterForTheTestAndEscForCancel)
{
    Test([](QDialog& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    EXPECT_THAT(machine.machine.started, IsEmpty());
    Test([](QDialog& form) { QTest::keyClick(&form, Qt::Key_Return); });
    EXPECT_EQ(machine.machine.started.size(), 1U);
}

TEST_F(DlgTestTest, StartsTheTestByItself)
{
    DlgTest form(session, nullptr);
    form.StartSimulation();
    EXPECT_EQ(machine.machine.started.size(), 1U);
    session.project.Files.rows.clear();
    ask.Expect({BoxKind::Inform, "Fel", "Kan ej simulera! Det finns inga filer i fillistan!"});
    form.StartSimulation();
    EXPECT_EQ(machine.machine.started.size(), 1U);
}

TEST_F(DlgTestTest, LooksRight)
{
    DlgTest form(session, nullptr);
    EXPECT_EQ(form.windowTitle(), "Testa");
    ShowActive(form);
    SavePicture(form, "DlgTest");
    SaveDarkPicture(form, "DlgTest");
}

TEST_F(DlgTestTest, TheDesignPreviewStartsAtOnce)
{
    session.project.Files.rows.clear();
    session.surface.width = 800;
    ShowDesignPreview(session);
    EXPECT_THAT(machine.machine.started,
                ElementsAre(Pair("C:\\Quillon\\Test\\Qns32x.exe", "/PREVIEW")));
    const std::string written = machine.files.Get("C:\\Quillon\\Test\\QNSETUP.INF");
    EXPECT_THAT(written, testing::HasSubstr("\r\nDesWidth = 800\r\n"));
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(session.project.ProgramGroup.ProgramGroup, "");
}

} // namespace
} // namespace quillon::test
