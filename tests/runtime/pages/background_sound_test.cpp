#include "runtime/pages/background_sound.h"

#include "runtime/support/scripted_pages.h"
#include "runtime/support/setup_fixture.h"

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

/// A player whose round ends after so many queries, and that is stopped after so many rounds.
struct Player {
    int looksOfARound = 3;
    int rounds = 2;
    Text refused; // the beginning of a command that fails
    Text ending = "stopped";
    std::vector<Text> commands;
    int looks = 0;
    int played = 0;

    bool Play()
    {
        const auto send = [&](const Text& command, Text* answer) {
            commands.push_back(command);
            if (!refused.empty() && command.starts_with(refused))
                return false;
            if (command.starts_with("play")) {
                ++played;
                looks = 0;
            }
            if (answer != nullptr)
                *answer = ++looks < looksOfARound ? "Playing" : ending;
            return true;
        };
        return PlayOverAndOver(OpenSoundCommand(kSoundKinds[0], "C:\\QN1.TMP\\QNSOUND.WAV"), send,
                               [&](bool) { return played == rounds && looks == looksOfARound; });
    }
};

const Text kOpen = "open \"C:\\QN1.TMP\\QNSOUND.WAV\" type waveaudio alias quillon";
const Text kPlay = "play quillon from 0";
const Text kLook = "status quillon mode";
const Text kClose = "close quillon";

TEST(SoundLoop, PlaysOverAndOverAndLetsGoOfTheFile)
{
    Player player;
    EXPECT_TRUE(player.Play());
    EXPECT_THAT(player.commands, testing::ElementsAre(kOpen, kPlay, kLook, kLook, kLook, kPlay,
                                                      kLook, kLook, kLook, kClose));
}

TEST(SoundLoop, EndsWhereThereIsNoDevice)
{
    Player player{.refused = "open"};
    EXPECT_FALSE(player.Play());
    EXPECT_THAT(player.commands, testing::ElementsAre(kOpen));
}

TEST(SoundLoop, EndsWhereTheFileCanNotBePlayed)
{
    Player player{.refused = "play"};
    EXPECT_FALSE(player.Play());
    EXPECT_THAT(player.commands, testing::ElementsAre(kOpen, kPlay, kClose));
}

TEST(SoundLoop, BeginsAnewWhereNobodySaysHowFarItIs)
{
    Player player{.looksOfARound = 0, .rounds = 2, .refused = "status"};
    EXPECT_TRUE(player.Play());
    EXPECT_THAT(player.commands, testing::ElementsAre(kOpen, kPlay, kLook, kPlay, kClose));
}

TEST(SoundLoop, NamesEachKindByItsOwnDevice)
{
    EXPECT_EQ(OpenSoundCommand(*KindOfSound("a.mp3"), "C:\\a b.mp3"),
              "open \"C:\\a b.mp3\" type mpegvideo alias quillon");
    EXPECT_EQ(OpenSoundCommand(*KindOfSound("a.MID"), "C:\\a.mid"),
              "open \"C:\\a.mid\" type sequencer alias quillon");
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
