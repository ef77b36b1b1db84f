#include "runtime/install/copy_decision.h"

#include "runtime/texts/language_file.h"

#include <gtest/gtest.h>

namespace quillon {

constexpr LocalTime kOld{2003, 5, 1, 12, 0, 0};
constexpr LocalTime kNew{2004, 5, 1, 12, 0, 0};

struct DecisionCase {
    const char* options;
    ComparedFile existing;
    ComparedFile ours;
    CopyVerdict verdict;
    const char* reason;
};

class DecideCopyTable : public testing::TestWithParam<DecisionCase> {};

TEST_P(DecideCopyTable, Holds)
{
    const DecisionCase& row = GetParam();
    const CopyDecision decision = DecideCopy(row.options, row.existing, row.ours);
    EXPECT_EQ(decision.verdict, row.verdict) << row.options;
    EXPECT_EQ(decision.reason ? LanguageTexts()(*decision.reason) : "", row.reason) << row.options;
}

constexpr const char* kNever = "filen finns redan och ska aldrig ersättas";
constexpr const char* kReadOnly = "den befintliga filen är skrivskyddad";
constexpr const char* kNewerDate = "den befintliga filen är nyare (2004-05-01 12:00:00)";

INSTANTIATE_TEST_SUITE_P(
    , DecideCopyTable,
    testing::Values(
        DecisionCase{"", {kNew, "", false}, {kOld, "", false}, CopyVerdict::Copy, ""},
        DecisionCase{"D", {kNew, "", false}, {kOld, "", false}, CopyVerdict::Keep, kNewerDate},
        DecisionCase{"D", {kOld, "", false}, {kNew, "", false}, CopyVerdict::Copy, ""},
        DecisionCase{"D", {kOld, "", false}, {kOld, "", false}, CopyVerdict::Copy, ""},
        // An archive keeps even seconds only, so one second more is no newer file.
        DecisionCase{"D",
                     {{2004, 5, 1, 12, 0, 1}, "", false},
                     {{2004, 5, 1, 12, 0, 0}, "", false},
                     CopyVerdict::Copy,
                     ""},
        DecisionCase{"N", {kOld, "", false}, {kNew, "", false}, CopyVerdict::Keep, kNever},
        DecisionCase{"NX", {kOld, "", false}, {kNew, "", false}, CopyVerdict::Keep, kNever},
        DecisionCase{"X", {kOld, "", false}, {kNew, "", false}, CopyVerdict::Ask, ""},
        DecisionCase{"DX", {kNew, "", false}, {kOld, "", false}, CopyVerdict::Keep, kNewerDate},
        DecisionCase{"D", {kOld, "", true}, {kNew, "", false}, CopyVerdict::Keep, kReadOnly},
        DecisionCase{"DW", {kOld, "", true}, {kNew, "", false}, CopyVerdict::Copy, ""},
        DecisionCase{"V", {kNew, "1.2", false}, {kOld, "1.3", false}, CopyVerdict::Copy, ""},
        DecisionCase{"V",
                     {kOld, "1.10", false},
                     {kNew, "1.9", false},
                     CopyVerdict::Keep,
                     "den befintliga filen har nyare version (1.10)"},
        DecisionCase{"V", {kOld, "1.2", false}, {kNew, "1.2", false}, CopyVerdict::Copy, ""},
        DecisionCase{"VE",
                     {kOld, "1.2", false},
                     {kNew, "1.2.0.0", false},
                     CopyVerdict::Keep,
                     "den befintliga filen har samma version (1.2)"},
        DecisionCase{"E", {kOld, "1.2", false}, {kNew, "1.2", false}, CopyVerdict::Copy, ""},
        DecisionCase{"V",
                     {kOld, "1.2", false},
                     {kNew, "", false},
                     CopyVerdict::Keep,
                     "den befintliga filen har version 1.2, den nya saknar version"},
        DecisionCase{"V", {kNew, "", false}, {kOld, "1.2", false}, CopyVerdict::Copy, ""},
        DecisionCase{"VRAW", {kOld, "1.0", true}, {kNew, "2.0", false}, CopyVerdict::Copy, ""}));

struct VersionCase {
    const char* left;
    const char* right;
    int order;
};
class VersionOrder : public testing::TestWithParam<VersionCase> {};

TEST_P(VersionOrder, ComparesNumberByNumber)
{
    EXPECT_EQ(CompareVersions(GetParam().left, GetParam().right), GetParam().order);
    EXPECT_EQ(CompareVersions(GetParam().right, GetParam().left), -GetParam().order);
}

INSTANTIATE_TEST_SUITE_P(
    , VersionOrder,
    testing::Values(VersionCase{"1.2.3.4", "1.2.3.4", 0}, VersionCase{"1, 2, 3, 4", "1.2.3.4", 0},
                    VersionCase{"1.10", "1.9", 1}, VersionCase{"2", "1.9.9.9", 1},
                    VersionCase{"1.2", "1.2.0.1", -1}, VersionCase{"", "0.0", 0},
                    VersionCase{"6.0.97.82", "6.0.97.9", 1}));

} // namespace quillon
