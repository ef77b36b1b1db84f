#include "filelist/forms/RecursiveCollect.h"

#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

// A user whose window gets events while the walk runs.
class LiveAsk : public ScriptedAsk {
public:
    using ScriptedAsk::ScriptedAsk;
    void ProcessEvents() override
    {
        if (onProcessEvents)
            onProcessEvents();
    }
    std::function<void()> onProcessEvents;
};

class RecursiveCollectTest : public WindowTest {
protected:
    RecursiveCollectTest()
    {
        machine.files.Put("C:\\Data\\App\\b.txt", std::string(3072, 'x'));
        machine.files.Put("C:\\Data\\App\\Sub\\a.txt", std::string(1024, 'x'));
    }

    ListWork Work() { return {session.project, session.state, machine.host, live}; }
    Text Label(RecursiveCollect& form, const char* name)
    {
        return FromQt(Find<QLabel>(form, name).text());
    }
    std::vector<Text> Destinations()
    {
        std::vector<Text> shown;
        for (const FileListRow& row : session.project.Files.rows)
            shown.push_back(row[Destination] + " " + row[Filename]);
        return shown;
    }

    LiveAsk live;
    TreeToAdd tree{.StartDirectory = "C:\\Data\\App", .BaseDestination = "%DESTDIR"};
};

TEST_F(RecursiveCollectTest, OpensWithItsFolderAndBothWays)
{
    RecursiveCollect form(Work(), tree, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Samlar ihop filer från underkataloger");
    EXPECT_EQ(Label(form, "sStartDirect"), "C:\\Data\\App");
    EXPECT_EQ(Label(form, "sNumberFiles"), "0");
    EXPECT_EQ(Label(form, "sSearchStatus"), "");
    EXPECT_TRUE(form.oReplaceLevel1InTree->isChecked());
    EXPECT_EQ(form.oConcatTree->text(), "&Addera katalogträd till '%DESTDIR'  (%DESTDIR+träd)");
    SavePicture(form, "RecursiveCollect");
    SaveDarkPicture(form, "RecursiveCollect");
}

TEST_F(RecursiveCollectTest, ReplacesTheStartLevel)
{
    RecursiveCollect form(Work(), tree, nullptr);
    ShowActive(form);
    Click(form, "cmdStart");
    EXPECT_THAT(Destinations(), ElementsAre("%DESTDIR\\Sub a.txt", "%DESTDIR b.txt"));
    EXPECT_EQ(Label(form, "sSearchStatus"), "Klar!");
    EXPECT_EQ(Label(form, "sNumberFiles"), "2");
    EXPECT_EQ(Label(form, "lblSummary"), "4 kB på mindre än 1 s");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(form.cmdClose->isDefault());
    EXPECT_TRUE(form.cmdClose->hasFocus());
    QApplication::processEvents();
    SavePicture(form, "RecursiveCollect-klar");
    QTest::keyClick(&form, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(RecursiveCollectTest, HangsTheWholeTreeBelowTheDestination)
{
    RecursiveCollect form(Work(), tree, nullptr);
    ShowActive(form);
    Click(form, "oConcatTree");
    QTest::keyClick(&form, Qt::Key_Return);
    EXPECT_THAT(Destinations(),
                ElementsAre("%DESTDIR\\Data\\App\\Sub a.txt", "%DESTDIR\\Data\\App b.txt"));
}

TEST_F(RecursiveCollectTest, CountsTheFilesOfASecondRunThoughNoneIsAdded)
{
    RecursiveCollect form(Work(), tree, nullptr);
    ShowActive(form);
    Click(form, "cmdStart");
    machine.files.Put("C:\\Data\\App\\aa.txt", std::string(2048, 'x'));
    Click(form, "cmdStart");
    EXPECT_EQ(Label(form, "sNumberFiles"), "3");
    EXPECT_EQ(Label(form, "lblSummary"), "2 kB på mindre än 1 s") << "of the new file";
    EXPECT_EQ(session.project.Files.rows.size(), 3U);
}

TEST_F(RecursiveCollectTest, KnowsWhereTheFormerRowsStand)
{
    FileListRow row;
    row[Filename] = "az.txt";
    session.project.Files.rows = {row};
    RecursiveCollect form(Work(), tree, nullptr);
    EXPECT_EQ(form.Places(), NewPlaces{0});
    ShowActive(form);
    Click(form, "cmdStart");
    EXPECT_EQ(form.Places(), NewPlaces{1});
    machine.files.Put("C:\\Data\\App\\aa.txt", std::string(2048, 'x'));
    Click(form, "cmdStart");
    EXPECT_EQ(form.Places(), NewPlaces{2});
}

TEST_F(RecursiveCollectTest, TellsOfAWalkThatFailed)
{
    machine.files.At("C:\\Data\\App\\Sub").unreadable = true;
    live.Expect({BoxKind::Critical, "Kan ej addera", "Åtkomst nekas till 'C:\\Data\\App\\Sub'."});
    RecursiveCollect form(Work(), tree, nullptr);
    ShowActive(form);
    Click(form, "cmdStart");
    EXPECT_EQ(Label(form, "sSearchStatus"), "Fel inträffade!");
    EXPECT_TRUE(form.cmdStart->isDefault());
    EXPECT_TRUE(form.cmdStart->isEnabled());
}

TEST_F(RecursiveCollectTest, LivesWhileItWalksAndGoesOnWhenItIsClosed)
{
    RecursiveCollect form(Work(), tree, nullptr);
    ShowActive(form);
    int looks = 0;
    live.onProcessEvents = [&] {
        ++looks;
        EXPECT_EQ(Label(form, "sSearchStatus"), "Söker...");
        EXPECT_FALSE(form.cmdStart->isEnabled());
        form.reject();
    };
    Click(form, "cmdStart");
    EXPECT_EQ(looks, 1) << "nothing may reach the list once the window is gone";
    EXPECT_EQ(session.project.Files.rows.size(), 2U);
}

} // namespace
} // namespace quillon::test
