#include "filelist/forms/DlgFindReplaceData.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgFindReplaceDataTest : public WindowTest {};

TEST_F(DlgFindReplaceDataTest, OpensForEachOfItsUses)
{
    const std::pair<ReplaceIn, const char*> uses[] = {
        {ReplaceIn::Destinations, "Sök och ersätt destinationskatalog"},
        {ReplaceIn::Sources, "Sök och ersätt källkatalog"},
        {ReplaceIn::Options, "Sök och ersätt kopieringsinställningar"}};
    for (const auto& [where, caption] : uses) {
        DlgFindReplaceData form(where, "%DESTDIR\\Bilder", session, nullptr);
        ShowActive(form);
        EXPECT_EQ(form.windowTitle(), caption);
        EXPECT_EQ(TextIn(form, "tFindThis"), "%DESTDIR\\Bilder");
        EXPECT_EQ(TextIn(form, "tReplaceWith"), "");
        EXPECT_TRUE(form.tReplaceWith->hasFocus());
        EXPECT_FALSE(form.cPartOfText->isChecked());
        EXPECT_EQ(form.cPartOfText->isVisible(), where != ReplaceIn::Options);
        EXPECT_FALSE(form.Accepted());
    }
}

TEST_F(DlgFindReplaceDataTest, GivesWhatWasTypedOnOk)
{
    DlgFindReplaceData form(ReplaceIn::Destinations, "%DESTDIR", session, nullptr);
    ShowActive(form);
    Type(form, "tFindThis", "%WINDIR");
    Type(form, "tReplaceWith", "%SYSDIR\\Å");
    Click(form, "cPartOfText");
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    QTest::keyClick(&form, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_TRUE(form.Accepted());
    EXPECT_EQ(form.Data.find, "%WINDIR");
    EXPECT_EQ(form.Data.with, "%SYSDIR\\Å");
    EXPECT_TRUE(form.Data.partOfText);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgFindReplaceDataTest, LooksForTheWholeTextUnlessAPartIsTicked)
{
    DlgFindReplaceData form(ReplaceIn::Sources, "c:\\d", session, nullptr);
    ShowActive(form);
    Click(form, "cmdOK");
    EXPECT_EQ(form.Data.find, "c:\\d");
    EXPECT_EQ(form.Data.with, "");
    EXPECT_FALSE(form.Data.partOfText);
}

TEST_F(DlgFindReplaceDataTest, TakesLettersAloneForCopyOptions)
{
    DlgFindReplaceData form(ReplaceIn::Options, "DA*", session, nullptr);
    ShowActive(form);
    EXPECT_EQ(TextIn(form, "tFindThis"), "DA*");
    TypeKeys(*form.tReplaceWith, "dv*1åE;");
    EXPECT_EQ(TextIn(form, "tReplaceWith"), "DVXXXEX");
    form.tReplaceWith->setCursorPosition(1);
    TypeKeys(*form.tReplaceWith, "w");
    EXPECT_EQ(TextIn(form, "tReplaceWith"), "DWVXXXEX");
    EXPECT_EQ(form.tReplaceWith->cursorPosition(), 2) << "the caret stays behind the key";
    QApplication::clipboard()->setText("a*");
    form.tReplaceWith->selectAll();
    form.tReplaceWith->paste();
    EXPECT_EQ(TextIn(form, "tReplaceWith"), "AX");
    Click(form, "cmdOK");
    EXPECT_EQ(form.Data.with, "AX");
}

TEST_F(DlgFindReplaceDataTest, LeavesFoldersAsTheyAreTyped)
{
    DlgFindReplaceData form(ReplaceIn::Sources, "", session, nullptr);
    ShowActive(form);
    TypeKeys(*form.tReplaceWith, "c:\\Жå 1*");
    EXPECT_EQ(TextIn(form, "tReplaceWith"), "c:\\å 1*") << "but for what no project can hold";
}

TEST_F(DlgFindReplaceDataTest, StaysOpenOverASemicolon)
{
    ask.Expect({BoxKind::Critical, "Ogiltiga tecken hittade"});
    DlgFindReplaceData form(ReplaceIn::Destinations, "%DESTDIR", session, nullptr);
    ShowActive(form);
    Type(form, "tReplaceWith", "a;b");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.Accepted());
    EXPECT_TRUE(form.tReplaceWith->hasFocus());
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    Type(form, "tReplaceWith", "ab");
    Type(form, "tFindThis", "a;b");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.Accepted()) << "what is looked for may be anything";
}

TEST_F(DlgFindReplaceDataTest, CancelsByButtonAndEsc)
{
    for (const bool byKey : {false, true}) {
        DlgFindReplaceData form(ReplaceIn::Destinations, "%DESTDIR", session, nullptr);
        ShowActive(form);
        Type(form, "tReplaceWith", "a;b");
        if (byKey)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            Click(form, "cmdCancel");
        EXPECT_FALSE(form.isVisible());
        EXPECT_FALSE(form.Accepted());
        EXPECT_EQ(session.state.ProjectIsDirty, kOff);
    }
}

TEST_F(DlgFindReplaceDataTest, HasItsPictures)
{
    DlgFindReplaceData form(ReplaceIn::Destinations, "%DESTDIR\\Bilder", session, nullptr);
    ShowActive(form);
    Type(form, "tReplaceWith", "%PROGRAMFILES\\Bilder");
    SavePicture(form, "DlgFindReplaceData");
    SaveDarkPicture(form, "DlgFindReplaceData");
    DlgFindReplaceData options(ReplaceIn::Options, "DA*", session, nullptr);
    ShowActive(options);
    SavePicture(options, "DlgFindReplaceData-options");
}

} // namespace
} // namespace quillon::test
