// Create's part in signing, with the real signing program on a real disk.
#include "builder/signing/sign_programs.h"

#include "builder/signing/program_signature.h"
#include "platform/posix/posix_host.h"
#include "support/certificates.h"
#include "support/program_file.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SigningInCreate : public testing::Test, public DiskSource {
protected:
    SigningInCreate()
    {
        project.Sign.SignSelfExtractFile = kOn;
        project.Sign.SignSPCFilename = WindowsPath(keys.Path("code.spc"));
        project.Sign.SignPVKFilename = WindowsPath(keys.Path("locked.pvk"));
        disk.Put("SELF.EXE", MakeProgramFile({}) + "payload");
    }
    std::optional<Text> NextDisk(int) override { return {}; }
    std::uint64_t Capacity(const Text&) const override { return 0; }

    static Text WindowsPath(const std::string& hostPath)
    {
        return "Z:" + ReplaceAll(hostPath, "/", "\\");
    }
    static MachineSettings Settings(const TempFolder& disk)
    {
        MachineSettings settings;
        settings.drives = {{'Z', "/"}, {'C', disk.Path("c")}};
        settings.tempFolder = disk.Path("tmp");
        return settings;
    }
    /// Prepares a run and signs SELF.EXE in its place.
    Step Sign(Signing* signing)
    {
        CreateOptions options;
        CompressionInterface compression(host.host, ask, *this);
        CreateRun run{.project = project,
                      .state = state,
                      .form = form,
                      .options = options,
                      .host = host.host,
                      .ask = ask,
                      .compression = compression,
                      .signing = signing};
        Step step = PrepareSigning(run);
        if (step == Step::GoOn)
            step = SignProgram(run, WindowsPath(disk.Path("SELF.EXE")), "SELF.EXE");
        failure = run.signingFailure;
        return step;
    }
    ProgramSignature::State StateOfProgram()
    {
        const auto file = host.files.OpenInput(WindowsPath(disk.Path("SELF.EXE")));
        return ReadProgramSignature(*file).state;
    }
    PasswordQuestion Answering(std::optional<Text> answer)
    {
        return [this, answer](const Text& title, const Text& prompt) {
            questions.push_back(title + "|" + prompt);
            return answer;
        };
    }

    const Certificates& keys = Certificates::Shared();
    TempFolder disk;
    PosixHost host{(disk.PutFolder("tmp"), Settings(disk))};
    ScriptedAsk ask;
    Project project;
    OpenProjectState state;
    CreateForm form;
    Text failure;
    std::vector<Text> questions;
};

TEST_F(SigningInCreate, SignsAFinishedProgramInItsPlace)
{
    Signing signing(&host.programs, {}, Answering(Certificates::kPassword));
    EXPECT_EQ(Sign(&signing), Step::GoOn) << failure;
    EXPECT_THAT(questions, ElementsAre("Lösenord|Lösenord till '" +
                                       WindowsPath(keys.Path("locked.pvk")) + "':"));
    EXPECT_EQ(StateOfProgram(), ProgramSignature::State::Signed);
    EXPECT_THAT(ask.statusLines, ElementsAre("Signerar SELF.EXE"));
    EXPECT_FALSE(disk.Has("SELF.EXE.SIGNED"));
}

TEST_F(SigningInCreate, LeavesTheProgramAsItWasWhereThatFails)
{
    const std::string before = disk.Get("SELF.EXE");
    Signing signing(&host.programs, {}, Answering("fel"));
    EXPECT_EQ(Sign(&signing), Step::Stop);
    EXPECT_THAT(ask.statusLines,
                ElementsAre("Signerar SELF.EXE", "Fel! Kan ej signera SELF.EXE!",
                            " Lösenordet till nyckeln stämmer inte, eller så är nyckelfilen "
                            "skadad."));
    EXPECT_EQ(disk.Get("SELF.EXE"), before);
    EXPECT_FALSE(disk.Has("SELF.EXE.SIGNED"));
}

TEST_F(SigningInCreate, EndsWhereTheUserTellsNoPassword)
{
    Signing signing(&host.programs, {}, Answering(std::nullopt));
    EXPECT_EQ(Sign(&signing), Step::Stop);
    EXPECT_EQ(failure, "Lösenordet till nyckeln saknas.");
    EXPECT_EQ(StateOfProgram(), ProgramSignature::State::Unsigned);
}

TEST_F(SigningInCreate, AsksForNoPasswordThatTheKeyDoesNotNeed)
{
    project.Sign.SignPVKFilename = WindowsPath(keys.Path("code.pvk"));
    Signing signing(&host.programs, {}, Answering("never used"));
    EXPECT_EQ(Sign(&signing), Step::GoOn) << failure;
    EXPECT_THAT(questions, IsEmpty());
}

TEST_F(SigningInCreate, AsksForThePinOfAToken)
{
    project.Sign.SignPVKFilename = "pkcs11:object=nyckel?module-path=/none.so";
    Signing signing(&host.programs, {}, Answering(std::nullopt));
    EXPECT_EQ(Sign(&signing), Step::Stop);
    EXPECT_THAT(questions, ElementsAre("PIN-kod|PIN-kod till nyckelenheten:"));
}

TEST_F(SigningInCreate, FailsWhereNothingCanSign)
{
    EXPECT_EQ(Sign(nullptr), Step::Stop);
    EXPECT_EQ(failure, "Här finns inget som kan signera.");
    project.Sign.SignSelfExtractFile = kOff;
    EXPECT_EQ(Sign(nullptr), Step::GoOn);
    EXPECT_EQ(StateOfProgram(), ProgramSignature::State::Unsigned);
}

} // namespace
} // namespace quillon::test
