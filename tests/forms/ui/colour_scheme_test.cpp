#include "ui/look/colour_scheme.h"

#include "support/window_test.h"
#include "ui/look/colours.h"

#include <QtDBus/QDBusVariant>

namespace quillon::test {
namespace {

TEST(ColourScheme, ReadsTheDesktopsAnswer)
{
    const auto wrapped = [](const QVariant& value) {
        return QVariant::fromValue(QDBusVariant(value));
    };
    EXPECT_TRUE(IsDarkPreference(wrapped(wrapped(1U))));
    EXPECT_TRUE(IsDarkPreference(wrapped(1U)));
    EXPECT_FALSE(IsDarkPreference(wrapped(wrapped(2U))));
    EXPECT_FALSE(IsDarkPreference(wrapped(0U)));
    EXPECT_FALSE(IsDarkPreference(wrapped("dark")));
    EXPECT_FALSE(IsDarkPreference({}));
}

TEST(ColourScheme, HasADarkPaletteThatCanBeRead)
{
    const QPalette dark = DarkPalette();
    EXPECT_TRUE(IsDark(dark));
    EXPECT_FALSE(IsDark(QPalette(QColor(0xf0, 0xf0, 0xf0))));
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::Text, QPalette::AlternateBase},
        {QPalette::ButtonText, QPalette::Button},
        {QPalette::ToolTipText, QPalette::ToolTipBase},
        {QPalette::HighlightedText, QPalette::Highlight},
        {QPalette::Link, QPalette::Base}};
    for (const auto& [text, background] : pairs)
        EXPECT_GE(Contrast(dark.color(text), dark.color(background)), 4.5) << text;
    EXPECT_GE(Contrast(dark.color(QPalette::Disabled, QPalette::Text),
                       dark.color(QPalette::Disabled, QPalette::Base)),
              3.0);
}

} // namespace
} // namespace quillon::test
