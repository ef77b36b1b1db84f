// The boxes of the desktop program, their pictures above all.
#include "ui/dialogs/QtAsk.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class QtAskTest : public WindowTest {
protected:
    /// The picture of the box that `show` brings up, kept as `name`.
    QImage PictureOf(const std::string& name, const std::function<void()>& show)
    {
        QImage picture;
        OnNextDialog([&](QDialog& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            picture = box.iconPixmap().toImage();
            EXPECT_EQ(picture.devicePixelRatio(), box.devicePixelRatioF());
            SavePicture(box, name);
            SaveDarkPicture(box, name);
        });
        show();
        EXPECT_FALSE(picture.isNull()) << name;
        return picture;
    }

    QtAsk user{machine.host,
               HostPaths{.toHost = [](const Text&) { return std::nullopt; },
                         .toWindows = [](const std::string& path) { return "Z:" + path; }}};
};

TEST_F(QtAskTest, HasOwnPicturesInItsBoxes)
{
    const Text text = "Kan ej skapa! Det finns inga filer i fillistan!";
    const QImage information = PictureOf("MsgBox-info", [&] { user.Inform("Fel", text); });
    const QImage warning = PictureOf("MsgBox-warning", [&] { user.Warn("Fel", text); });
    const QImage critical = PictureOf("MsgBox-critical", [&] { user.Critical("Fel", text); });
    const QImage question =
        PictureOf("MsgBox-question", [&] { user.YesNoCancel("Tavrell Quillon 2004", text); });
    EXPECT_EQ(PictureOf("MsgBox-yesno", [&] { user.YesNo("Fel", text, Ask::Stops::OnNo); }),
              warning);
    EXPECT_EQ(PictureOf("MsgBox-okcancel", [&] { user.OkCancel("Diskett", text); }), information);
    const QImage pictures[] = {information, warning, critical, question};
    for (const QImage& picture : pictures)
        for (const QImage& other : pictures)
            EXPECT_EQ(picture == other, &picture == &other);
    const QColor filled = critical.pixelColor(critical.width() / 4, critical.height() / 2);
    EXPECT_EQ(filled.alpha(), 255);
    EXPECT_GT(filled.red(), 150);
}

// Commands ask in the midst of their work, one inside the other.
TEST_F(QtAskTest, LiftsTheBusyPointerWhileItAsks)
{
    const std::function<void()> questions[] = {
        [&] { user.Inform("Info", "?"); },
        [&] { user.Warn("Info", "?"); },
        [&] { user.Critical("Fel", "?"); },
        [&] { user.YesNo("Fel", "?", Ask::Stops::OnNo); },
        [&] { user.OkCancel("Fel", "?"); },
        [&] { user.YesNoCancel("Fel", "?"); },
        [&] { user.OpenFile({.title = "Öppna"}); },
        [&] { user.OpenFiles({.title = "Öppna"}); },
        [&] { user.SaveFile({.title = "Spara"}); },
        [&] { user.SelectDir("Katalog", ""); },
        [&] { user.XInputBox("Rad", "Skriv"); },
        [&] { user.ChooseColour(0); },
        [&] { user.ChooseFont({}); },
    };
    user.ShowBusyPointer(true);
    user.ShowBusyPointer(true);
    int asked = 0;
    for (const auto& question : questions) {
        OnNextDialog([&](QDialog&) {
            ++asked;
            EXPECT_EQ(QApplication::overrideCursor(), nullptr) << asked;
        });
        question();
        ASSERT_NE(QApplication::overrideCursor(), nullptr) << asked;
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(asked, 13);
    user.ShowBusyPointer(false);
    EXPECT_NE(QApplication::overrideCursor(), nullptr) << "both commands are still at work";
    user.ShowBusyPointer(false);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(QtAskTest, LiftsTheBusyPointerForTheChoicesOfTheFileList)
{
    int asked = 0;
    const auto choose = [&](auto&&...) -> std::optional<Text> {
        ++asked;
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << asked;
        return "x";
    };
    user.onChooseDestination = choose;
    user.onChooseComponent = choose;
    user.onChooseVariable = choose;
    user.ShowBusyPointer(true);
    user.ChooseDestination({});
    user.ChooseComponent({});
    user.ChooseVariable();
    EXPECT_EQ(asked, 3);
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    user.ShowBusyPointer(false);
}

} // namespace
} // namespace quillon::test
