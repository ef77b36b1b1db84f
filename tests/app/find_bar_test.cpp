#include "app/MainForm.h"
#include "app/file_list/FileListView.h"
#include "app/file_list/FindBar.h"
#include "filelist/list_builder.h"
#include "support/window_test.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FindBarTest : public WindowTest {
protected:
    FindBarTest()
    {
        session.project.Files =
            MakeList({MakeRow("alfa.txt"), MakeRow("beta.dll", "%SYSDIR"), MakeRow("gamma.txt")});
        form = std::make_unique<MainForm>(session);
        form->resize(640, 400);
        ShowActive(*form);
        Find<FileListView>(*form, "ListViewFiles").setFocus();
    }
    void Open() { QTest::keyClick(form->focusWidget(), Qt::Key_F, Qt::ControlModifier); }
    void Press(Qt::Key key, Qt::KeyboardModifiers with = {})
    {
        QTest::keyClick(form->focusWidget(), key, with);
    }
    Text Found() { return FromQt(Find<QLabel>(*form, "sFound").text()); }
    bool IsOpen() { return Find<QWidget>(*form, "FindBar").isVisible(); }

    std::unique_ptr<MainForm> form;
};

TEST_F(FindBarTest, OpensByItsKeysOnAnyTabAndClosesByEsc)
{
    EXPECT_FALSE(IsOpen());
    form->SelectTab(Tab::Dialogs);
    Open();
    EXPECT_EQ(form->SelectedTab(), Tab::Files);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(form->focusWidget()->objectName(), "tFind");
    SavePicture(*form, "FindBar");
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(form->focusWidget()->objectName(), "ListViewFiles");
}

TEST_F(FindBarTest, FindsWhileOneTypes)
{
    Open();
    QWidget& field = *form->focusWidget();
    TypeKeys(field, "t");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(0));
    EXPECT_EQ(Found(), "1 av 3");
    TypeKeys(field, "a.");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1));
    EXPECT_EQ(Found(), "1 av 1");
    TypeKeys(field, "x");
    EXPECT_EQ(Found(), "Ingen träff");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(1)) << "stays where it was";
    Type(*form, "tFind", "");
    EXPECT_EQ(Found(), "");
}

TEST_F(FindBarTest, StepsThroughTheRowsByKeysAndButtons)
{
    Open();
    TypeKeys(*form->focusWidget(), ".txt");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(0));
    Press(Qt::Key_Return);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
    EXPECT_EQ(Found(), "2 av 2");
    Press(Qt::Key_Return);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(0)) << "from the top again";
    Press(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
    Press(Qt::Key_F3);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(0));
    Click(*form, "cmdFindNext");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
    Click(*form, "cmdFindPrevious");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(0));
    Click(*form, "cmdFindClose");
    EXPECT_FALSE(IsOpen());
    Press(Qt::Key_F3);
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2)) << "in the list, too";
}

TEST_F(FindBarTest, OffersWhatWasLookedForLast)
{
    Open();
    TypeKeys(*form->focusWidget(), "beta");
    Press(Qt::Key_Escape);
    Open();
    EXPECT_EQ(Find<QLineEdit>(*form, "tFind").selectedText(), "beta");
    TypeKeys(*form->focusWidget(), "gam");
    EXPECT_THAT(form->SelectedRows(), ElementsAre(2));
}

TEST_F(FindBarTest, MarksNothingChanged)
{
    Open();
    TypeKeys(*form->focusWidget(), "beta");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

} // namespace
} // namespace quillon::test
