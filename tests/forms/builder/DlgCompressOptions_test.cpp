#include "builder/forms/DlgCompressOptions.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class DlgCompressOptionsTest : public WindowTest {
protected:
    CreateForm create;
};

TEST_F(DlgCompressOptionsTest, EnablesWhatTheMediumOffers)
{
    struct {
        Medium medium;
        bool canUse;
        bool canKeep;
        bool canBeSmall;
    } const cases[] = {{Medium::Floppy, true, false, false},
                       {Medium::CompressedCd, true, true, true},
                       {Medium::CdTree, false, false, false},
                       {Medium::Internet, true, false, false}};
    for (const auto& expected : cases) {
        create.TargetMedia = expected.medium;
        DlgCompressOptions form(session, create, nullptr);
        EXPECT_EQ(form.cUseCompression->isEnabled(), expected.canUse);
        EXPECT_EQ(form.cKeepCompressedFilesOneAndOne->isEnabled(), expected.canKeep);
        EXPECT_EQ(form.cSmallContainer->isEnabled(), expected.canBeSmall);
        EXPECT_FALSE(form.cSmallContainer->isChecked());
        EXPECT_TRUE(form.cUseCompression->isChecked());
        EXPECT_FALSE(form.cKeepCompressedFilesOneAndOne->isChecked());
    }
}

TEST_F(DlgCompressOptionsTest, FilesOneByOneAreNotCompressed)
{
    DlgCompressOptions form(session, create, nullptr);
    ShowActive(form);
    Click(form, "cKeepCompressedFilesOneAndOne");
    EXPECT_FALSE(form.cUseCompression->isChecked());
    EXPECT_FALSE(form.cUseCompression->isEnabled());
    Click(form, "cKeepCompressedFilesOneAndOne");
    EXPECT_TRUE(form.cUseCompression->isEnabled());
    EXPECT_FALSE(form.cUseCompression->isChecked());
}

TEST_F(DlgCompressOptionsTest, OpensWithFilesOneByOne)
{
    create.UseCompression = 1;
    create.KeepCompressedFilesOneAndOne = 1;
    DlgCompressOptions form(session, create, nullptr);
    EXPECT_TRUE(form.cKeepCompressedFilesOneAndOne->isChecked());
    EXPECT_FALSE(form.cUseCompression->isChecked());
    EXPECT_FALSE(form.cUseCompression->isEnabled());
}

TEST_F(DlgCompressOptionsTest, OkStoresBoth)
{
    DlgCompressOptions form(session, create, nullptr);
    ShowActive(form);
    Click(form, "cKeepCompressedFilesOneAndOne");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.OK);
    EXPECT_EQ(create.UseCompression, 0);
    EXPECT_EQ(create.KeepCompressedFilesOneAndOne, 1);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgCompressOptionsTest, OnlyWhatIsCompressedTogetherCanBeSmall)
{
    create.SmallContainer = 1;
    DlgCompressOptions form(session, create, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.cSmallContainer->isChecked());
    EXPECT_TRUE(form.cSmallContainer->isEnabled());
    Click(form, "cUseCompression");
    EXPECT_FALSE(form.cSmallContainer->isEnabled());
    Click(form, "cUseCompression");
    EXPECT_TRUE(form.cSmallContainer->isEnabled());
    Click(form, "cKeepCompressedFilesOneAndOne");
    EXPECT_FALSE(form.cSmallContainer->isEnabled());
    // The earlier choice is still there when the option is enabled again.
    EXPECT_TRUE(form.cSmallContainer->isChecked());
}

TEST_F(DlgCompressOptionsTest, OkStoresTheSmallContainer)
{
    DlgCompressOptions form(session, create, nullptr);
    ShowActive(form);
    Click(form, "cSmallContainer");
    EXPECT_EQ(create.SmallContainer, 0);
    Click(form, "cmdOK");
    EXPECT_EQ(create.SmallContainer, 1);
    EXPECT_EQ(create.UseCompression, 1);
    EXPECT_EQ(session.state.ProjectIsDirty, kOn);
}

TEST_F(DlgCompressOptionsTest, CancelStoresNothing)
{
    DlgCompressOptions form(session, create, nullptr);
    ShowActive(form);
    Click(form, "cSmallContainer");
    Click(form, "cKeepCompressedFilesOneAndOne");
    Click(form, "cmdCancel");
    EXPECT_EQ(create.SmallContainer, 0);
    EXPECT_EQ(create.UseCompression, 1);
    EXPECT_EQ(create.KeepCompressedFilesOneAndOne, 0);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgCompressOptionsTest, AccessLettersReachTheBoxes)
{
    DlgCompressOptions form(session, create, nullptr);
    ShowActive(form);
    QTest::keyClick(&form, Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.cSmallContainer->isChecked(); }));
    QTest::keyClick(&form, Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !form.cUseCompression->isChecked(); }));
    QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.cKeepCompressedFilesOneAndOne->isChecked(); }));
    SavePicture(form, "DlgCompressOptions");
}

} // namespace
} // namespace quillon::test
