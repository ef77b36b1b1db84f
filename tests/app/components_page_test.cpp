#include "app/pages/ComponentsPage.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class ComponentsPageTest : public WindowTest {
protected:
    void SetUp() override
    {
        page.ShowSession();
        ShowActive(page);
    }

    /// The control of a component, by its number.
    template <class Widget>
    Widget& Of(const char* array, int number)
    {
        return Find<Widget>(page, (array + std::to_string(number)).c_str());
    }

    void ExpectInUse(int number, bool inUse)
    {
        EXPECT_EQ(Of<QCheckBox>("cComp", number).isChecked(), inUse) << number;
        EXPECT_EQ(Of<QLineEdit>("tCompName", number).isEnabled(), inUse) << number;
        EXPECT_EQ(Of<QLabel>("sCompDir", number).isEnabled(), inUse) << number;
        EXPECT_EQ(Of<QLineEdit>("tCompDir", number).isEnabled(), inUse) << number;
        EXPECT_EQ(Of<QPushButton>("cmdCompData", number).isEnabled(), inUse) << number;
    }

    int columnsShown = 0;
    ComponentsPage page{session, [this] { ++columnsShown; }};
    std::array<section::FileComponent, kComponentCount>& components =
        session.project.FileComponents;
};

TEST_F(ComponentsPageTest, ShowsNineComponentsOutOfUseInANewProject)
{
    for (int number = 1; number <= 9; ++number) {
        ExpectInUse(number, false);
        EXPECT_EQ(Of<QLineEdit>("tCompName", number).text(), "");
        EXPECT_EQ(Of<QLineEdit>("tCompDir", number).text(), "");
    }
    EXPECT_EQ(page.findChild<QCheckBox*>("cComp0"), nullptr);
    EXPECT_EQ(page.findChild<QCheckBox*>("cComp10"), nullptr);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    EXPECT_EQ(columnsShown, 0);
    SavePicture(page, "ComponentsPage-tom");
}

TEST_F(ComponentsPageTest, TicksAComponentByMouseAndKey)
{
    for (int number = 1; number <= 9; ++number) {
        const auto index = static_cast<std::size_t>(number - 1);
        Click(page, ("cComp" + std::to_string(number)).c_str());
        EXPECT_EQ(components[index].Comp, 1);
        ExpectInUse(number, true);
        EXPECT_EQ(std::exchange(session.state.ProjectIsDirty, kOff), kOn);
        EXPECT_EQ(std::exchange(columnsShown, 0), 1);
        QTest::keyClick(&Of<QCheckBox>("cComp", number), Qt::Key_Space);
        EXPECT_EQ(components[index].Comp, 0);
        ExpectInUse(number, false);
        EXPECT_EQ(std::exchange(session.state.ProjectIsDirty, kOff), kOn);
        EXPECT_EQ(std::exchange(columnsShown, 0), 1);
    }
}

TEST_F(ComponentsPageTest, KeepsNameFolderAndRowsOfAComponentThatGoesOutOfUse)
{
    Click(page, "cComp2");
    Type(page, "tCompName2", "Hjälp");
    Type(page, "tCompDir2", "%DESTDIR\\Hjälp");
    session.project.Files.rows.emplace_back()[ComponentNumber] = "2";
    Click(page, "cComp2");
    EXPECT_EQ(components[1].CompName, "Hjälp");
    EXPECT_EQ(components[1].CompDir, "%DESTDIR\\Hjälp");
    EXPECT_EQ(session.project.Files.rows[0][ComponentNumber], "2");
    EXPECT_EQ(TextIn(page, "tCompName2"), "Hjälp");
}

TEST_F(ComponentsPageTest, WritesEachTypedChangeToTheProject)
{
    Click(page, "cComp9");
    session.state.ProjectIsDirty = kOff;
    Type(page, "tCompName9", "Nio");
    EXPECT_EQ(components[8].CompName, "Nio");
    EXPECT_EQ(std::exchange(session.state.ProjectIsDirty, kOff), kOn);
    Type(page, "tCompDir9", "D:\\Nio");
    EXPECT_EQ(components[8].CompDir, "D:\\Nio");
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(ComponentsPageTest, OpensTheFurtherSettingsOfEachComponent)
{
    for (int number = 1; number <= 9; ++number) {
        Click(page, ("cComp" + std::to_string(number)).c_str());
        Type(page, ("tCompName" + std::to_string(number)).c_str(), "Del");
        session.state.ProjectIsDirty = kOff;
        OnNextDialog([&](QDialog& form) {
            EXPECT_EQ(form.objectName(), "DlgCompMoreData");
            EXPECT_EQ(FromQt(Find<QLabel>(form, "sComponent").text()),
                      "Del   (# " + std::to_string(number) + ")");
            Click(form, "cCanChangeDestDir");
            Click(form, "cmdOK");
        });
        Click(page, ("cmdCompData" + std::to_string(number)).c_str());
        EXPECT_EQ(components[static_cast<std::size_t>(number - 1)].CompCanChangeDir, 1);
        EXPECT_EQ(session.state.ProjectIsDirty, kOn);
    }
}

TEST_F(ComponentsPageTest, TakesNoMoreThanTheProjectFileHolds)
{
    Click(page, "cComp1");
    Type(page, "tCompName1", Text(60, 'n'));
    Type(page, "tCompDir1", Text(150, 'd'));
    EXPECT_EQ(components[0].CompName, Text(39, 'n'));
    EXPECT_EQ(components[0].CompDir, Text(127, 'd'));
}

TEST_F(ComponentsPageTest, FollowsTheProject)
{
    components[4] = {.Comp = 1, .CompName = "Fem", .CompDir = "C:\\5"};
    components[5] = {.Comp = 0, .CompName = "Sex"};
    page.ShowSession();
    ExpectInUse(5, true);
    ExpectInUse(6, false);
    EXPECT_EQ(TextIn(page, "tCompName5"), "Fem");
    EXPECT_EQ(TextIn(page, "tCompDir5"), "C:\\5");
    EXPECT_EQ(TextIn(page, "tCompName6"), "Sex");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    SavePicture(page, "ComponentsPage");
    session.project.FileComponents = {};
    page.ShowSession();
    ExpectInUse(5, false);
    EXPECT_EQ(TextIn(page, "tCompName5"), "");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(ComponentsPageTest, ShowsFieldsOutOfUseOnTheWindowsColourInEveryScheme)
{
    components[0].Comp = 1;
    page.ShowSession();
    const auto expectColours = [&] {
        const QPalette ofPage = page.palette();
        EXPECT_EQ(Of<QLineEdit>("tCompName", 1).palette().color(QPalette::Active, QPalette::Base),
                  ofPage.color(QPalette::Active, QPalette::Base));
        EXPECT_EQ(Of<QLineEdit>("tCompName", 2).palette().color(QPalette::Disabled, QPalette::Base),
                  ofPage.color(QPalette::Disabled, QPalette::Window));
    };
    expectColours();
    QPalette dark(QColor(50, 50, 50), QColor(35, 35, 35));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    page.setPalette(dark);
    expectColours();
    SavePicture(page, "ComponentsPage-mörk");
}

TEST_F(ComponentsPageTest, SpeaksItsFields)
{
    EXPECT_EQ(Of<QCheckBox>("cComp", 3).text(), "Komponent nr &3");
    EXPECT_EQ(Of<QLineEdit>("tCompName", 3).accessibleName(), "Namn på komponent nr 3");
    EXPECT_EQ(Of<QLineEdit>("tCompDir", 3).accessibleName(), "Katalog för komponent nr 3");
}

} // namespace
} // namespace quillon::test
