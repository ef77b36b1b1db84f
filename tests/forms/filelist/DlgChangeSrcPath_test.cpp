#include "filelist/forms/DlgChangeSrcPath.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgChangeSrcPathTest : public WindowTest {
protected:
    DlgChangeSrcPathTest() { machine.files.Put("C:\\D\\b.txt", "x"); }
};

TEST_F(DlgChangeSrcPathTest, OpensWithThePathOfTheRow)
{
    DlgChangeSrcPath form("c:\\d\\a.txt", session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Ändra källsökväg");
    EXPECT_EQ(TextIn(form, "tFileSrcDir"), "c:\\d\\a.txt");
    EXPECT_TRUE(form.tFileSrcDir->hasFocus());
    EXPECT_EQ(form.tFileSrcDir->accessibleName(), "Filens sökväg på din hårddisk");
    SavePicture(form, "DlgChangeSrcPath");
    SaveDarkPicture(form, "DlgChangeSrcPath");
}

TEST_F(DlgChangeSrcPathTest, TakesThePathOfAFile)
{
    DlgChangeSrcPath form("c:\\d\\a.txt", session, nullptr);
    ShowActive(form);
    Type(form, "tFileSrcDir", "c:\\d\\B.txt");
    Click(form, "OKButton");
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(form.Source, "c:\\d\\B.txt") << "as it was typed";
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgChangeSrcPathTest, WarnsOfAPathWithoutAFileAndKeepsIt)
{
    for (const Text path : {"c:\\d\\borta.txt", "C:\\D", ""}) {
        ask.Expect({BoxKind::Warn, "Varning", "Filen existerar inte vid angiven sökväg!"});
        DlgChangeSrcPath form("c:\\d\\b.txt", session, nullptr);
        ShowActive(form);
        Type(form, "tFileSrcDir", path);
        QTest::keyClick(form.tFileSrcDir, Qt::Key_Return);
        EXPECT_FALSE(form.isVisible());
        EXPECT_TRUE(form.Accepted());
        EXPECT_EQ(form.Source, path);
    }
}

TEST_F(DlgChangeSrcPathTest, StaysOpenOverASemicolon)
{
    ask.Expect({BoxKind::Critical, "Ogiltiga tecken hittade",
                "Källsökvägen innehåller ogiltiga tecken! Semikolon kan inte användas, eftersom "
                "det skiljer fälten i projektfilen åt."});
    DlgChangeSrcPath form("c:\\d\\b.txt", session, nullptr);
    ShowActive(form);
    Type(form, "tFileSrcDir", "c:\\d\\b;.txt");
    Click(form, "OKButton");
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.Accepted());
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgChangeSrcPathTest, TakesNoCharacterThatAProjectCannotHold)
{
    DlgChangeSrcPath form("", session, nullptr);
    ShowActive(form);
    Type(form, "tFileSrcDir", "c:\\ЖÅ");
    EXPECT_EQ(TextIn(form, "tFileSrcDir"), "c:\\Å");
}

TEST_F(DlgChangeSrcPathTest, CancelsByButtonAndEsc)
{
    for (const bool byKey : {false, true}) {
        DlgChangeSrcPath form("c:\\d\\b.txt", session, nullptr);
        ShowActive(form);
        Type(form, "tFileSrcDir", "c:\\borta;");
        if (byKey)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            Click(form, "CancelButton");
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.Accepted());
        EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    }
}

} // namespace
} // namespace quillon::test
