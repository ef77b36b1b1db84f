#include "ui/controls/character_widths.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

TEST(CharacterWidths, AddUpToWhatATextTakes)
{
    const QFont font = QApplication::font();
    CharacterWidths widths(font);
    for (const char* text : {"", "a", "WWWWW.exe", "Användarhandbok för nybörjare.pdf", "1234567"})
        EXPECT_NEAR(widths.WidthOf(text), QFontMetrics(font).horizontalAdvance(QString(text)),
                    2 + static_cast<double>(std::string_view(text).size()) / 4)
            << text;
    EXPECT_GT(widths.WidthOf("\xff"), 0) << "no character, and yet it is shown";
}

} // namespace
} // namespace quillon::test
