#include "filelist/row_text.h"

#include "support/scripted_ask.h"

#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(CheckRowText, RefusesWhatEndsAField)
{
    ScriptedAsk ask(
        {{BoxKind::Critical, "Ogiltiga tecken hittade",
          "Fältet 'Parametrar' innehåller ogiltiga tecken! Semikolon kan inte användas, "
          "eftersom det skiljer fälten i projektfilen åt."}});
    EXPECT_TRUE(CheckRowText("a:b", "Fältet 'Parametrar'", ask));
    EXPECT_FALSE(CheckRowText("a;b", "Fältet 'Parametrar'", ask));
}

} // namespace
} // namespace quillon::test
