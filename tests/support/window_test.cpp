#include "support/window_test.h"

#include "support/window_looks.h"
#include "ui/kit/Form.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace quillon::test {

namespace {

/// Faults of a form that no eye has to look for.
void ExpectGoodLooks(QWidget& window)
{
    if (!dynamic_cast<Form*>(&window))
        return;
    EXPECT_THAT(UnnamedControls(window), testing::IsEmpty());
    EXPECT_THAT(CutCaptions(window), testing::IsEmpty());
    EXPECT_THAT(SharedAccessLetters(window), testing::IsEmpty());
}

} // namespace

void SavePicture(QWidget& window, const std::string& name)
{
    ExpectGoodLooks(window);
    const std::filesystem::path folder =
        std::filesystem::path(QUILLON_TOOL_FOLDER).parent_path() / "screens";
    std::filesystem::create_directories(folder);
    const QPixmap picture = window.grab();
    ASSERT_FALSE(picture.isNull());
    const std::string scale = window.devicePixelRatioF() > 1 ? "@2x" : "";
    const std::string file = (folder / (name + scale + ".png")).string();
    EXPECT_TRUE(picture.save(QString::fromStdString(file))) << file;
}

void SaveDarkPicture(QWidget& window, const std::string& name)
{
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
    dark.setColor(QPalette::Base, QColor(35, 35, 35));
    dark.setColor(QPalette::ToolTipBase, QColor(53, 53, 53));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::Link, QColor(90, 170, 250));
    QApplication::setPalette(dark);
    QCoreApplication::processEvents();
    SavePicture(window, name + "-dark");
    QApplication::setPalette(before);
    QCoreApplication::processEvents();
}

} // namespace quillon::test
