#include "actions/install_password.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

TEST(PasswordAfterReopening, TellsWhatTheProjectFileTakesAway)
{
    struct Case {
        const char* typed;
        std::optional<Text> kept;
    };
    for (const Case& one :
         {Case{"", std::nullopt}, Case{"Sesam öppna dig", std::nullopt}, Case{"\"", std::nullopt},
          Case{"a\"b\"", std::nullopt}, Case{" Sesam", "Sesam"}, Case{"Sesam ", "Sesam"},
          Case{"   ", ""}, Case{"\"Sesam\"", "Sesam"}, Case{"'Sesam'", "Sesam"},
          Case{"\"Sesam'", std::nullopt}, Case{" ' Sesam ' ", " Sesam "}})
        EXPECT_EQ(PasswordAfterReopening(one.typed), one.kept) << one.typed;
}

} // namespace
} // namespace quillon
