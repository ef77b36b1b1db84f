#include "shell/forms/DlgAbout.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

TEST(DlgAboutTest, NamesProductAndVersion)
{
    DlgAbout form;
    EXPECT_EQ(form.windowTitle(), "Om Tavrell Quillon 2004");
    EXPECT_EQ(form.lProductName->text(), "Tavrell Quillon 2004");
    EXPECT_EQ(form.lVersion->text(), "Version 6.5.6");
}

TEST(DlgAboutTest, ClosesByItsButtonAndByEsc)
{
    OnNextDialog([](QDialog& form) { Click(form, "cmdOK"); });
    ShowAbout(nullptr);
    OnNextDialog([](QDialog& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    ShowAbout(nullptr);
}

TEST(DlgAboutTest, LooksRight)
{
    DlgAbout form;
    ShowActive(form);
    SavePicture(form, "DlgAbout");
    SaveDarkPicture(form, "DlgAbout");
}

} // namespace
} // namespace quillon::test
