#include "runtime/background_sound.h"

#include "scripted_pages.h"
#include "setup_fixture.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::HasSubstr;
using testing::Not;

class CountedSound : public BackgroundSound {
public:
    void Start() override { ++starts; }
    bool HasFailed() const override { return hasFailed; }

    int starts = 0;
    bool hasFailed = false;
};

TEST(SoundKinds, AreThoseThatWindowsPlays)
{
    const auto device = [](const Text& name) {
        const SoundKind* const kind = KindOfSound(name);
        return Text(kind == nullptr ? "" : kind->device);
    };
    EXPECT_EQ(device("fanfar.wav"), "waveaudio");
    EXPECT_EQ(device("C:\\Ljud\\FANFAR.MID"), "sequencer");
    EXPECT_EQ(device("a.midi"), "sequencer");
    EXPECT_EQ(device("a.rmi"), "sequencer");
    EXPECT_EQ(device("a.mp3"), "mpegvideo");
    EXPECT_EQ(device("a.ogg"), "");
    EXPECT_EQ(device("wav"), "");
    EXPECT_EQ(device(""), "");
}

class SoundTest : public SetupFixture {
protected:
    SoundTest()
    {
        AddFile("prog.exe", "%DESTDIR", "program");
        project.DesSound.BackSoundFilename = "fanfar.wav";
    }
    CountedSound player;
};

TEST_F(SoundTest, BeginsOnceAndIsNotSpokenOfWhileItPlays)
{
    sound = &player;
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(player.starts, 1);
    EXPECT_THAT(Log(), Not(HasSubstr("ljudet")));
}

TEST_F(SoundTest, IsALineOfTheLogWhereItCannotBePlayed)
{
    sound = &player;
    player.hasFailed = true;
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Hoppar över ljudet till installationsskärmen: ljudet kan inte "
                                 "spelas upp"));
}

TEST_F(SoundTest, IsSilentWhereNothingIsShown)
{
    EXPECT_EQ(Install("/S"), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("ljudet till installationsskärmen: startas inte när ingenting"));
    project.DesSound.BackSoundFilename.clear();
    EXPECT_EQ(Install("/S"), ExitCode::Done);
    EXPECT_THAT(Log(), Not(HasSubstr("ljudet")));
}

TEST_F(SoundTest, IsNotHeardOnASystemThatThePackageIsNotFor)
{
    sound = &player;
    project.TargetOS.TargetOS_Win2000 = kOff;
    project.TargetOS.TargetOS_StopIfWrong = kOn;
    EXPECT_EQ(Install(), ExitCode::WrongSystem);
    EXPECT_EQ(player.starts, 0);
}

} // namespace
} // namespace quillon::test
