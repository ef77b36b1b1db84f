// Runs the tests where there is a Wine that can; elsewhere ends with the code that means "skipped".
#include "wine/wine.h"

#include <cstdio>
#include <exception>
#include <gtest/gtest.h>

namespace {

int RunWithWine()
{
    constexpr int kSkipped = 77;
    try {
        const std::string obstacle = quillon::test::PrepareWine();
        if (obstacle.empty())
            return RUN_ALL_TESTS();
        std::printf("Skipped: %s\n", obstacle.c_str());
        return kSkipped;
    } catch (const std::exception& error) {
        std::printf("Failed: %s\n", error.what());
        return 1;
    }
}

} // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const int result = RunWithWine();
    quillon::test::CleanUpAfterWine();
    return result;
}
