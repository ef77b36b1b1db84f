#include "builder/signing/code_signer.h"

#include "platform/run_error.h"
#include "support/memory_host.h"
#include "support/program_file.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Kind = ProgramArgument::Kind;

/// A signing program that does what the test says.
class FakePrograms : public ProgramRunner {
public:
    bool IsInstalled(const Text&) const override { return true; }
    ProgramOutcome Run(const ProgramOrder& order, const std::function<void()>&) override
    {
        orders.push_back(order);
        return run(order);
    }
    std::unique_ptr<WorkFolder> MakeWorkFolder() override { return nullptr; }

    std::function<ProgramOutcome(const ProgramOrder&)> run;
    std::vector<ProgramOrder> orders;
};

class CodeSigning : public testing::Test {
protected:
    CodeSigning()
    {
        machine.files.Put("C:\\a.exe", MakeProgramFile({}));
        order.key = {SigningKey::Kind::Pair, "C:\\firma.spc", "C:\\firma.pvk"};
    }
    Text Sign()
    {
        CodeSigner signer(machine.host, programs, order);
        return signer.Sign("C:\\a.exe", "C:\\signed.exe", {});
    }
    void Answer(ProgramOutcome outcome)
    {
        programs.run = [outcome](const ProgramOrder&) { return outcome; };
    }
    /// The program says that all went well, and leaves these bytes.
    void Leave(const std::string& bytes)
    {
        programs.run = [this, bytes](const ProgramOrder&) {
            machine.files.Put("C:\\signed.exe", bytes);
            return ProgramOutcome{.exitCode = 0};
        };
    }
    std::vector<Text> Words(std::size_t number) const
    {
        std::vector<Text> words;
        for (const ProgramArgument& argument : programs.orders.at(number).arguments)
            words.push_back(argument.kind == Kind::InputAsFile ? "<input>" : argument.text);
        return words;
    }

    MemoryHost machine;
    FakePrograms programs;
    SigningOrder order;
};

TEST_F(CodeSigning, BelievesNoProgramThatSaysItHasSigned)
{
    Leave(MakeProgramFile({}));
    EXPECT_EQ(Sign(), "Filen blev inte signerad.");
    EXPECT_FALSE(machine.files.FileExists("C:\\signed.exe"));
    Leave("no program");
    EXPECT_EQ(Sign(), "Filen blev inte signerad.");
    programs.run = [](const ProgramOrder&) { return ProgramOutcome{.exitCode = 0}; };
    EXPECT_THROW(Sign(), RunError);
}

TEST_F(CodeSigning, HandsThePasswordOverApart)
{
    order.password = "hemligt";
    order.description = "Prov";
    order.url = "https://firma.example";
    Answer({.exitCode = 1, .output = "Failed\n"});
    EXPECT_EQ(Sign(), "osslsigncode: Failed");
    EXPECT_EQ(programs.orders[0].program, "osslsigncode");
    EXPECT_EQ(programs.orders[0].input, "hemligt");
    EXPECT_EQ(programs.orders[0].maxSeconds, 120);
    EXPECT_THAT(Words(0),
                ElementsAre("sign", "-certs", "C:\\firma.spc", "-key", "C:\\firma.pvk", "-readpass",
                            "<input>", "-h", "sha256", "-n", "Prov", "-i", "https://firma.example",
                            "-in", "C:\\a.exe", "-out", "C:\\signed.exe"));
}

TEST_F(CodeSigning, TakesKeysInEveryForm)
{
    EXPECT_EQ(KeyArguments({SigningKey::Kind::Container, "C:\\a.pfx", ""}),
              (std::vector<ProgramArgument>{{"-pkcs12"}, {"C:\\a.pfx", Kind::Path}}));
    section::Sign sign;
    sign.SignSPCFilename = "pkcs11:object=cert?module-path=/x";
    sign.SignPVKFilename = "pkcs11:object=key?module-path=/usr/lib/a%20b.so&x=y";
    EXPECT_EQ(KeyArguments(KeyFor(sign, {})),
              (std::vector<ProgramArgument>{{"-pkcs11module"},
                                            {"/usr/lib/a b.so"},
                                            {"-pkcs11cert"},
                                            {"pkcs11:object=cert"},
                                            {"-key"},
                                            {"pkcs11:object=key"}}));
    sign.SignSPCFilename = "C:\\FIRMA.P12";
    sign.SignPVKFilename = "";
    EXPECT_EQ(KeyFor(sign, {}).kind, SigningKey::Kind::Container);
    // A named certificate does not go with the project's key.
    sign.SignPVKFilename = "C:\\firma.pvk";
    EXPECT_EQ(KeyFor(sign, {.certificate = "C:\\other.pem"}).key, "");
}

TEST_F(CodeSigning, TriesAnotherStampAndNothingElseASecondTime)
{
    order.servers = TimeStampServers(1, {});
    Answer({.exitCode = 1, .output = "RFC 3161 timestamping failed\n"});
    EXPECT_EQ(Sign(), "Ingen tidsstämpel kom från 'http://timestamp.digicert.com'.");
    ASSERT_EQ(programs.orders.size(), 2U);
    EXPECT_THAT(Words(0), testing::Contains("-ts"));
    EXPECT_THAT(Words(1), testing::Contains("-t"));
    programs.orders.clear();
    Answer({.exitCode = 1, .output = "Login to token failed, returning NULL...\n"});
    EXPECT_EQ(Sign(), "PIN-koden stämmer inte, eller så är nyckelenheten låst.");
    EXPECT_EQ(programs.orders.size(), 1U);
}

TEST_F(CodeSigning, EndsWithAServiceThatDoesNotAnswer)
{
    order.servers = TimeStampServers(0, {.timeStamp = "http://stamp.example"});
    Answer({.exitCode = -1, .output = "", .tookTooLong = true});
    EXPECT_EQ(Sign(), "osslsigncode blev inte färdigt på 120 sekunder.");
    EXPECT_EQ(programs.orders.size(), 1U);
}

TEST_F(CodeSigning, AsksForNoStampWhereNoneIsWanted)
{
    EXPECT_THAT(TimeStampServers(0, {}), IsEmpty());
    EXPECT_THAT(TimeStampServers(1, {.timeStamp = ""}), IsEmpty());
    EXPECT_EQ(TimeStampServers(0, {.timeStamp = "http://a"}).size(), 2U);
}

} // namespace
} // namespace quillon::test
