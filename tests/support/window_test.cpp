#include "support/window_test.h"

#include <filesystem>

namespace quillon::test {

void SavePicture(QWidget& window, const std::string& name)
{
    const std::filesystem::path folder =
        std::filesystem::path(QUILLON_TOOL_FOLDER).parent_path() / "screens";
    std::filesystem::create_directories(folder);
    const QPixmap picture = window.grab();
    ASSERT_FALSE(picture.isNull());
    const std::string scale = window.devicePixelRatioF() > 1 ? "@2x" : "";
    const std::string file = (folder / (name + scale + ".png")).string();
    EXPECT_TRUE(picture.save(QString::fromStdString(file))) << file;
}

} // namespace quillon::test
