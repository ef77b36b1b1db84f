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

    QtAsk user{machine.host, HostPaths{}};
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

} // namespace
} // namespace quillon::test
