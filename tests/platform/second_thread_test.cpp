#include "platform/second_thread.h"

#include "platform/run_error.h"

#include <gmock/gmock.h>

#include <stdexcept>
#include <thread>

namespace quillon {
namespace {

using testing::ElementsAre;

TEST(SecondThreadTest, WorksBesideItsOwnerAndInOrder)
{
    SecondThread thread;
    std::vector<int> done;
    std::thread::id worker;
    thread.Start([&] { worker = std::this_thread::get_id(); });
    for (int i = 0; i < 3; ++i)
        thread.Start([&, i] { done.push_back(i); });
    thread.Wait();
    EXPECT_THAT(done, ElementsAre(0, 1, 2));
    EXPECT_NE(worker, std::this_thread::get_id());
}

TEST(SecondThreadTest, HasNothingToWaitForBeforeItsFirstWork)
{
    SecondThread thread;
    thread.Wait();
    thread.Abandon();
}

TEST(SecondThreadTest, GivesEachWorkWhatTheOneBeforeHasLeft)
{
    SecondThread thread;
    std::uint64_t sum = 0;
    for (std::uint64_t i = 1; i <= 10'000; ++i)
        thread.Start([&sum, i] { sum += i; });
    thread.Wait();
    EXPECT_EQ(sum, 50'005'000U);
}

TEST(SecondThreadTest, TellsAFailureOnceAndWorksOn)
{
    SecondThread thread;
    thread.Start([] { throw RunError(ErrorNumber::kDiskFull, "C:\\a.txt"); });
    try {
        thread.Wait();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const RunError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::kDiskFull);
        EXPECT_EQ(error.Path(), "C:\\a.txt");
    }
    thread.Wait();
    bool isDone = false;
    thread.Start([&] { isDone = true; });
    thread.Wait();
    EXPECT_TRUE(isDone);
}

TEST(SecondThreadTest, BeginsNoWorkBehindOneThatFailed)
{
    SecondThread thread;
    bool isBegun = false;
    thread.Start([] { throw std::runtime_error("first"); });
    EXPECT_THROW(thread.Start([&] { isBegun = true; }), std::runtime_error);
    thread.Wait();
    EXPECT_FALSE(isBegun);
}

TEST(SecondThreadTest, DropsAFailureThatIsAbandoned)
{
    SecondThread thread;
    thread.Start([] { throw std::runtime_error("nobody hears it"); });
    thread.Abandon();
    thread.Wait();
}

TEST(SecondThreadTest, FinishesItsWorkBeforeItGoes)
{
    for (int i = 0; i < 200; ++i) {
        std::string written;
        {
            SecondThread thread;
            thread.Start([&] { written.assign(100'000, 'x'); });
        }
        ASSERT_EQ(written.size(), 100'000U);
    }
}

} // namespace
} // namespace quillon
