#include "app/MainForm.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

using MainFormTest = WindowTest;

TEST_F(MainFormTest, NamesTheProjectInItsTitle)
{
    MainForm form(session);
    EXPECT_EQ(form.windowTitle(), "Tavrell Quillon 2004 - [noname]");
    session.state.ProjectFileName = "C:\\Projekt\\prov.qnp";
    form.ShowTitle();
    EXPECT_EQ(form.windowTitle(), "Tavrell Quillon 2004 - [prov.qnp]");
}

TEST_F(MainFormTest, SelectsEachTabByItsCommand)
{
    MainForm form(session);
    for (int tab = kTabCount - 1; tab >= 0; --tab) {
        form.RunCommand(147 + tab);
        EXPECT_EQ(static_cast<int>(form.SelectedTab()), tab);
    }
}

TEST_F(MainFormTest, ClosesByItsCommand)
{
    MainForm form(session);
    ShowActive(form);
    form.RunCommand(112);
    EXPECT_FALSE(form.isVisible());
}

} // namespace
} // namespace quillon::test
