// Runs the tests where there is a Wine that can; elsewhere ends with the code that means "skipped".
#include "wine/wine.h"

#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    constexpr int kSkipped = 77;
    testing::InitGoogleTest(&argc, argv);
    const std::string obstacle = quillon::test::PrepareWine();
    if (!obstacle.empty()) {
        std::printf("Skipped: %s\n", obstacle.c_str());
        quillon::test::CleanUpAfterWine();
        return kSkipped;
    }
    const int result = RUN_ALL_TESTS();
    quillon::test::CleanUpAfterWine();
    return result;
}
