// Cancel works at each stage of the installation, not only while files are copied.
#include "runtime/support/setup_fixture.h"

#include "runtime/uninstall_entry_key.h"

namespace quillon {

using test::MachineState;

namespace {

using test::kMain;

// Presses Cancel, and says Yes to the question, as soon as it is time.
class CancellingUser : public SilentAsk {
public:
    explicit CancellingUser(std::function<bool()> isTime) : isTime_(std::move(isTime)) {}

    void ProcessEvents() override
    {
        if (isTime_())
            throw SetupFailure(ExitCode::Cancelled, {});
    }

private:
    std::function<bool()> isTime_;
};

} // namespace

class CancelledSetup : public test::SetupFixture {
protected:
    void CancelWhen(std::function<bool()> isTime)
    {
        const MachineState before = State();
        CancellingUser user(std::move(isTime));
        ask = &user;
        EXPECT_EQ(Install(""), ExitCode::Cancelled);
        ask = nullptr;
        EXPECT_EQ(State(), before) << Log();
    }
};

TEST_F(CancelledSetup, IsUndoneWhereNoFileHadToBeCopied)
{
    memory.files.Put(kMain + "\\egen.txt", "the user's own");
    AddFile("egen.txt", "%DESTDIR", "new", "N");
    CancelWhen([&] { return memory.files.FileExists(kMain + "\\~qnsetup.tmp"); });
}

TEST_F(CancelledSetup, IsUndoneBetweenTwoFilesThatRegisterThemselves)
{
    AddFile("a.dll", "%DESTDIR", "a", "R");
    AddFile("b.dll", "%DESTDIR", "b", "R");
    CancelWhen([&] { return target.registered.size() == 1; });
    EXPECT_TRUE(target.registered.empty());
}

TEST_F(CancelledSetup, IsUndoneWhenAllButItsRecordIsWritten)
{
    AddFile("prog.exe", "%DESTDIR", "program").iconMarker = "Ikon";
    CancelWhen([&] { return target.KeyExists(UninstallEntryKey("Exempel")); });
}

} // namespace quillon
