#include "ui/dialogs/XInputBox.h"

#include "support/window_test.h"
#include "ui/dialogs/QtAsk.h"

namespace quillon::test {
namespace {

class XInputBoxTest : public WindowTest {
protected:
    std::optional<Text> Asked() { return user.XInputBox("Lägg till sektion", "&Sektion:"); }

    QtAsk user{machine.host, HostPaths{}};
};

TEST_F(XInputBoxTest, GivesWhatWasTyped)
{
    OnNextDialog([](QDialog& box) {
        EXPECT_EQ(box.objectName(), "XInputBox");
        EXPECT_EQ(box.windowTitle(), "Lägg till sektion");
        EXPECT_EQ(Find<QLineEdit>(box, "tInput").accessibleName(), "Sektion");
        EXPECT_EQ(TextIn(box, "tInput"), "");
        SavePicture(box, "XInputBox");
        Type(box, "tInput", "Åäö 日1");
        Click(box, "cmdOK");
    });
    EXPECT_EQ(Asked(), "Åäö 1");
}

TEST_F(XInputBoxTest, TakesEnterForOk)
{
    OnNextDialog([](QDialog& box) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
        EXPECT_TRUE(Find<QLineEdit>(box, "tInput").hasFocus());
        TypeKeys(Find<QLineEdit>(box, "tInput"), "x");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(Asked(), "x");
}

TEST_F(XInputBoxTest, GivesNothingOnCancelAndEsc)
{
    for (const bool byKey : {false, true}) {
        OnNextDialog([byKey](QDialog& box) {
            Type(box, "tInput", "x");
            if (byKey)
                QTest::keyClick(&box, Qt::Key_Escape);
            else
                Click(box, "cmdCancel");
        });
        EXPECT_EQ(Asked(), std::nullopt);
    }
}

TEST_F(XInputBoxTest, TellsAnEmptyAnswerFromACancelledOne)
{
    OnNextDialog([](QDialog& box) { Click(box, "cmdOK"); });
    EXPECT_EQ(Asked(), "");
}

TEST(AskPasswordTest, ShowsNoLetterOfIt)
{
    OnNextDialog([](QDialog& box) {
        EXPECT_EQ(box.windowTitle(), "Lösenord");
        EXPECT_EQ(Find<QLineEdit>(box, "tInput").accessibleName(), "Lösenord till 'C:\\A&B.pvk'");
        EXPECT_EQ(Find<QLineEdit>(box, "tInput").echoMode(), QLineEdit::Password);
        SavePicture(box, "AskPassword");
        Type(box, "tInput", "hemligt å");
        EXPECT_EQ(Find<QLineEdit>(box, "tInput").displayText().indexOf("h"), -1);
        Click(box, "cmdOK");
    });
    EXPECT_EQ(AskPassword("Lösenord", "Lösenord till 'C:\\A&B.pvk':", nullptr), "hemligt å");
    OnNextDialog([](QDialog& box) { Click(box, "cmdCancel"); });
    EXPECT_EQ(AskPassword("Lösenord", "Lösenord:", nullptr), std::nullopt);
}

} // namespace
} // namespace quillon::test
