// quillonc signs what it makes: with every kind of key, with time stamps, and says what went wrong.
#include "builder/signing/program_signature.h"
#include "platform/posix/posix_host.h"
#include "platform/whole_file.h"
#include "support/certificates.h"
#include "support/program_file.h"
#include "support/stamp_server.h"
#include "workshop.h"

#include <algorithm>

namespace quillon::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using State = ProgramSignature::State;

constexpr const char* kPassword = Certificates::kPassword;

class Signing : public Workshop {
protected:
    Signing()
    {
        for (const char* program : {"SETUP32.EXE", "Small32/QNS32X.EXE", "Full32/QNS32X.EXE",
                                    "DUNZIP32.DLL", "QNREG32.EXE", "QNXREG2.EXE", "QNXUNIN.EXE"})
            disk.Put(std::string("tool/Release/") + program, MakeProgramFile({}) + program);
        disk.Put("src/Prog.exe", "the author's own");
        disk.PutFolder("tmp");
        environment["TMPDIR"] = disk.Path("tmp");
        project = SaveProjectOf({"Prog.exe"});
    }

    /// A project that signs by itself.
    std::string SigningProject(const std::string& certificate, const std::string& key,
                               Integer stamp = 0) const
    {
        Project signing = MakeProject({"Prog.exe"});
        signing.InstallOptions.UninstallSupport = kOn;
        signing.Sign = {.SignSelfExtractFile = kOn,
                        .SignDescription = "Prov för Åke",
                        .SignURL = "https://firma.example/prov",
                        .SignSPCFilename = WindowsPath(certificate),
                        .SignPVKFilename = key.empty() ? "" : WindowsPath(key),
                        .SignTimeStampSystem = stamp};
        return Save(signing, "signing.qnp");
    }
    static Text WindowsPath(const std::string& hostPath)
    {
        return "Z:" + ReplaceAll(hostPath, "/", "\\");
    }

    ProgramSignature SignatureOf(const std::string& name) const
    {
        PosixHost host(MachineSettings{.drives = {{'Z', "/"}, {'C', disk.Path("c")}}});
        const auto file = host.files.OpenInput(WindowsPath(disk.Path("out/" + name)));
        return ReadProgramSignature(*file, RootCertificate());
    }
    std::string RootCertificate() const
    {
        PosixHost host(MachineSettings{.drives = {{'Z', "/"}, {'C', disk.Path("c")}}});
        return ReadWholeFile(host.files, WindowsPath(keys.Path("ca.pem")));
    }
    /// What the signing program itself says about a file.
    ProgramRun OtherProgramsWord(const std::string& name) const
    {
        return RunProgram({"/usr/bin/osslsigncode", "verify", "-CAfile", keys.Path("ca.pem"),
                           "-TSA-CAfile", keys.Path("ca.pem"), "-in", disk.Path("out/" + name)});
    }
    void ExpectSigned(const std::string& name) const
    {
        const ProgramSignature signature = SignatureOf(name);
        EXPECT_EQ(signature.state, State::Signed) << name;
        EXPECT_TRUE(signature.isIntact && signature.isTrusted) << name << signature.fault;
        EXPECT_EQ(signature.signer, "Firma Åke AB") << name;
        EXPECT_EQ(signature.issuer, "Prov CA") << name;
        const ProgramRun other = OtherProgramsWord(name);
        EXPECT_EQ(other.exitCode, 0) << name << other.out;
    }
    /// No temporary file of a run is left, and neither the output nor the package holds the
    /// password.
    void ExpectNoTraces(const ProgramRun& run) const
    {
        EXPECT_THAT(Names("tmp"), IsEmpty());
        EXPECT_THAT(run.out + run.err, Not(HasSubstr(kPassword)));
        for (const std::string& name : Names("out"))
            EXPECT_THAT(disk.Get("out/" + name), Not(HasSubstr(kPassword))) << name;
    }
    ProgramRun CreateWith(const std::string& certificate, const std::string& key) const
    {
        std::vector<std::string> words{"--sign-cert", keys.Path(certificate)};
        if (!key.empty())
            words.insert(words.end(), {"--sign-key", keys.Path(key)});
        return Create(project, words);
    }

    const Certificates& keys = Certificates::Shared();
    std::string project;
};

TEST_F(Signing, SignsEveryProgramOfAPackageAsTheProjectWants)
{
    environment["QUILLON_SIGN_PASSWORD"] = kPassword;
    const ProgramRun run = Create(SigningProject(keys.Path("code.spc"), keys.Path("locked.pvk")));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, HasSubstr("Kopierar SETUP.EXE\n"
                                   "Signerar SETUP.EXE\n"
                                   "Kopierar QNS32X.EXE  (Small Version)\n"
                                   "Signerar QNS32X.EXE\n"
                                   "Kopierar DUNZIP32.DLL\n"
                                   "Signerar DUNZIP32.DLL\n"
                                   "Kopierar QNXUNIN.EXE\n"
                                   "Signerar QNXUNIN.EXE\n"
                                   "Skapar FILELIST.INF\n"));
    for (const char* name : {"SETUP.EXE", "QNS32X.BIN", "DUNZIP32.DLL", "QNXUNIN.BIN"})
        ExpectSigned(name);
    EXPECT_EQ(SignatureOf("SETUP.EXE").stamped, "");
    EXPECT_THAT(OtherProgramsWord("SETUP.EXE").out,
                AllOf(HasSubstr("Prov för Åke"), HasSubstr("https://firma.example/prov")));
    ExpectNoTraces(run);
    // The digests in the package are those of the signed files.
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0);
}

TEST_F(Signing, TheSignedProgramIsTheUnsignedOneWithItsSignature)
{
    Create(project);
    const std::string before = disk.Get("out/SETUP.EXE");
    EXPECT_EQ(SignatureOf("SETUP.EXE").state, State::Unsigned);
    EXPECT_EQ(CreateWith("code.pem", "code.key").exitCode, 0);
    const std::string after = disk.Get("out/SETUP.EXE");
    ASSERT_GT(after.size(), before.size());
    std::size_t changed = 0;
    for (std::size_t i = 0; i < before.size(); ++i)
        changed += before[i] != after[i] ? 1U : 0U;
    EXPECT_LE(changed, 12U); // its sum, and the place of the signature
}

struct KeyForm {
    const char* name;
    const char* certificate;
    const char* key;
    bool isLocked;
};
class SigningWith : public Signing, public testing::WithParamInterface<KeyForm> {};

TEST_P(SigningWith, SignsByThePasswordInAFile)
{
    const KeyForm& form = GetParam();
    disk.Put("password", std::string(form.isLocked ? kPassword : "") + "\r\nen rad till\n");
    std::vector<std::string> words{"--sign-cert", keys.Path(form.certificate),
                                   "--sign-password-file", disk.Path("password")};
    if (*form.key != '\0')
        words.insert(words.end(), {"--sign-key", keys.Path(form.key)});
    const ProgramRun run = Create(project, words);
    EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
    ExpectSigned("SETUP.EXE");
    ExpectNoTraces(run);
}

TEST_P(SigningWith, RefusesAWrongPassword)
{
    const KeyForm& form = GetParam();
    environment["QUILLON_SIGN_PASSWORD"] = "fel";
    const ProgramRun run = CreateWith(form.certificate, form.key);
    EXPECT_EQ(run.exitCode, form.isLocked ? 1 : 0);
    if (!form.isLocked)
        return;
    EXPECT_THAT(run.out, HasSubstr("Signerar SETUP.EXE\n"
                                   "Fel! Kan ej signera SETUP.EXE!\n"
                                   " Lösenordet till nyckeln stämmer inte, eller så är nyckelfilen "
                                   "skadad.\n"));
    EXPECT_EQ(run.err, "'SETUP.EXE' kan ej signeras: Lösenordet till nyckeln stämmer inte, eller "
                       "så är nyckelfilen skadad.\n");
    EXPECT_FALSE(disk.Has("out/SETUP.EXE"));
    EXPECT_THAT(Names("tmp"), IsEmpty());
}

TEST_P(SigningWith, AsksNobodyForAMissingPassword)
{
    const KeyForm& form = GetParam();
    const ProgramRun run = CreateWith(form.certificate, form.key);
    EXPECT_EQ(run.exitCode, form.isLocked ? 1 : 0);
    EXPECT_EQ(run.err, form.isLocked ? "Lösenordet till nyckeln saknas.\n" : "");
}

INSTANTIATE_TEST_SUITE_P(Keys, SigningWith,
                         testing::Values(KeyForm{"SpcAndLockedPvk", "code.spc", "locked.pvk", true},
                                         KeyForm{"SpcAndPvk", "code.spc", "code.pvk", false},
                                         KeyForm{"Pem", "code.pem", "code.key", false},
                                         KeyForm{"LockedPem", "code.pem", "locked.key", true},
                                         KeyForm{"Pfx", "code.pfx", "", true}),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_F(Signing, AKeyInATokenSignsThroughItsModule)
{
    const std::string module = "/usr/lib/softhsm/libsofthsm2.so";
    disk.PutFolder("tokens");
    disk.Put("softhsm.conf", "directories.tokendir = " + disk.Path("tokens") + "\n");
    environment["SOFTHSM2_CONF"] = disk.Path("softhsm.conf");
    const ProgramRun token = RunProgram(
        {"/bin/sh", "-c",
         "softhsm2-util --init-token --free --label prov --so-pin 12345678 --pin 4321 && openssl "
         "pkcs8 -topk8 -nocrypt -in " +
             keys.Path("code.key") + " -out " + disk.Path("key.p8") +
             " && softhsm2-util --import " + disk.Path("key.p8") +
             " --token prov --label nyckel --id 01 --pin 4321"},
        environment);
    ASSERT_EQ(token.exitCode, 0) << token.err;
    const std::string address = "pkcs11:token=prov;object=nyckel;type=private";
    const auto create = [&](const std::string& key, std::vector<std::string> more = {}) {
        more.insert(more.begin(), {"--sign-cert", keys.Path("code.pem"), "--sign-key", key});
        return Create(project, more);
    };

    environment["QUILLON_SIGN_PASSWORD"] = "4321";
    const ProgramRun run = create(address, {"--sign-module", module});
    EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
    ExpectSigned("SETUP.EXE");
    const ProgramRun byAddress = create(address + "?module-path=/usr/lib%2Fsofthsm/libsofthsm2.so");
    EXPECT_EQ(byAddress.exitCode, 0) << byAddress.out << byAddress.err;

    EXPECT_EQ(create(address).err, "PKCS#11-modulen saknas: ange den med --sign-module, eller som "
                                   "module-path i nyckelns adress.\n");
    EXPECT_EQ(create(address + "?pin-value=4321&module-path=" + module).err,
              "PIN-koden får inte stå i nyckelns adress.\n");
    EXPECT_THAT(create(address, {"--sign-module", disk.Path("saknas.so")}).err,
                HasSubstr("saknas.so' finns inte.\n"));
    environment["QUILLON_SIGN_PASSWORD"] = "9999";
    EXPECT_EQ(create(address, {"--sign-module", module}).err,
              "'SETUP.EXE' kan ej signeras: PIN-koden stämmer inte, eller så är nyckelenheten "
              "låst.\n");
}

TEST_F(Signing, ATimeStampOfRfc3161ComesWithEachSignature)
{
    StampServer server(keys, StampServer::Knows::Rfc3161);
    const ProgramRun run = Create(SigningProject(keys.Path("code.pem"), keys.Path("code.key")),
                                  {"--timestamp", server.Address()});
    EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
    EXPECT_EQ(server.Requests(), 4);
    for (const char* name : {"SETUP.EXE", "QNXUNIN.BIN"}) {
        ExpectSigned(name);
        EXPECT_EQ(SignatureOf(name).stampedBy, "Prov Stamp");
        EXPECT_THAT(SignatureOf(name).stamped,
                    testing::MatchesRegex("[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9:]{8}Z"));
    }
}

TEST_F(Signing, AServiceOfTheOldKindIsAskedSecondAndFromThenOnFirst)
{
    StampServer server(keys, StampServer::Knows::OldKind);
    const ProgramRun run = Create(SigningProject(keys.Path("code.pem"), keys.Path("code.key")),
                                  {"--timestamp", server.Address()});
    EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
    EXPECT_EQ(server.Requests(), 5);
    ExpectSigned("SETUP.EXE");
    EXPECT_EQ(SignatureOf("SETUP.EXE").stampedBy, "Prov Stamp");
    EXPECT_THAT(SignatureOf("QNXUNIN.BIN").stamped, Not(IsEmpty()));
}

TEST_F(Signing, AServiceWithoutAnAnswerIsAFailedCreate)
{
    StampServer server(keys, StampServer::Knows::Nothing);
    const ProgramRun run = Create(SigningProject(keys.Path("code.pem"), keys.Path("code.key")),
                                  {"--timestamp", server.Address()});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(server.Requests(), 2);
    EXPECT_EQ(run.err, "'SETUP.EXE' kan ej signeras: Ingen tidsstämpel kom från '" +
                           server.Address() + "'.\n");
    EXPECT_FALSE(disk.Has("out/SETUP.EXE"));
}

TEST_F(Signing, TheProjectsTimeStampCanBeLeftOut)
{
    const ProgramRun run = Create(SigningProject(keys.Path("code.pem"), keys.Path("code.key"), 1),
                                  {"--timestamp", "none"});
    EXPECT_EQ(run.exitCode, 0) << run.out << run.err;
    EXPECT_EQ(SignatureOf("SETUP.EXE").stamped, "");
}

TEST_F(Signing, ACallCanDoWithoutTheProjectsSignature)
{
    const ProgramRun run = Create(SigningProject("/saknas.spc", "/saknas.pvk"), {"--no-sign"});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, Not(HasSubstr("Signerar")));
    EXPECT_EQ(SignatureOf("SETUP.EXE").state, State::Unsigned);
    const ProgramRun both = Create(project, {"--no-sign", "--sign-cert", keys.Path("code.pfx")});
    EXPECT_EQ(both.exitCode, 2);
    EXPECT_THAT(both.err, HasSubstr("--sign-cert och --no-sign utesluter varandra.\n"));
}

TEST_F(Signing, AMissingKeyEndsTheWorkBeforeAnythingIsWritten)
{
    const ProgramRun gone = Create(SigningProject("/saknas.spc", "/saknas.pvk"));
    EXPECT_EQ(gone.exitCode, 1);
    EXPECT_EQ(gone.out, "** Skapar 32 bitars installationsuppsättning för CD (komprimerat) **\n"
                        "Fel! Kan ej signera!\n"
                        " Certifikatet 'Z:\\saknas.spc' finns inte.\n");
    EXPECT_EQ(gone.err, "Certifikatet 'Z:\\saknas.spc' finns inte.\n");
    EXPECT_THAT(Names("out"), IsEmpty());
    EXPECT_EQ(Create(SigningProject(keys.Path("code.spc"), "")).err,
              "Den privata nyckeln saknas: ange en fil på fliken Signering.\n");
    EXPECT_EQ(Create(project, {"--sign-cert", keys.Path("code.spc"), "--sign-password-file",
                               disk.Path("saknas")})
                  .exitCode,
              3);
}

TEST_F(Signing, AKeyOfAnotherCertificateIsRefused)
{
    const ProgramRun run = CreateWith("code.pem", "tsa.key");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("'SETUP.EXE' kan ej signeras: "));
    EXPECT_FALSE(disk.Has("out/SETUP.EXE"));
}

TEST_F(Signing, WhatIsNoProgramIsNamed)
{
    disk.Put("tool/Release/SETUP32.EXE", "text");
    EXPECT_EQ(CreateWith("code.pem", "code.key").err,
              "'SETUP.EXE' kan ej signeras: Filen är inget Windows-program.\n");
}

TEST_F(Signing, AMissingSigningProgramIsNamed)
{
    environment["PATH"] = disk.Path("empty");
    EXPECT_EQ(CreateWith("code.pem", "code.key").err,
              "Programmet osslsigncode saknas; installera paketet osslsigncode.\n");
}

TEST_F(Signing, AFailedSignatureLeavesAnOlderPackageAsItWas)
{
    Create(project);
    const std::string before = disk.Get("out/SETUP.EXE");
    environment["QUILLON_SIGN_PASSWORD"] = "fel";
    EXPECT_EQ(CreateWith("code.pfx", "").exitCode, 1);
    EXPECT_EQ(disk.Get("out/SETUP.EXE"), before);
    EXPECT_EQ(Quillonc({"verify", out}).exitCode, 0);
}

// Each bit of the program is covered, and so is the signature itself.
TEST_F(Signing, AChangedByteIsFound)
{
    ASSERT_EQ(CreateWith("code.pem", "code.key").exitCode, 0);
    const std::string whole = disk.Get("out/SETUP.EXE");
    const std::size_t size = disk.Get("tool/Release/SETUP32.EXE").size();
    for (const std::size_t place : {std::size_t(2), size / 2, size - 1, size + 200, size + 700}) {
        std::string changed = whole;
        changed[place] = static_cast<char>(changed[place] ^ 1);
        disk.Put("out/SETUP.EXE", changed);
        // A change in a certificate breaks only its chain.
        const ProgramSignature signature = SignatureOf("SETUP.EXE");
        EXPECT_FALSE(signature.isIntact && signature.isTrusted) << place;
        EXPECT_NE(signature.fault, "") << place;
    }
    disk.Put("out/SETUP.EXE", whole + "x");
    EXPECT_EQ(SignatureOf("SETUP.EXE").fault, "signaturen ligger inte sist i filen");
    disk.Put("out/SETUP.EXE", "text");
    EXPECT_EQ(SignatureOf("SETUP.EXE").state, State::NoProgram);
}

} // namespace
} // namespace quillon::test
