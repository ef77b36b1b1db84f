// quillonc extract: what is in packages of every medium, without installing it; and list and verify
// of a self-extracting program.
#include "archive/solid/writer/solid_writer.h"
#include "platform/posix/posix_host.h"
#include "support/certificates.h"
#include "support/program_file.h"
#include "workshop.h"

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class Extracting : public Workshop {
protected:
    Extracting()
    {
        disk.Put("src/Prog.exe", std::string(5000, 'p'));
        disk.Put("src/Data/Läs mig.txt", "text");
        disk.Put("src/logo.bmp", "BM logo");
        disk.PutFolder("tmp");
        environment["TMPDIR"] = disk.Path("tmp");
        product = MakeProject({"Prog.exe", "Data\\Läs mig.txt", "Tom\\"});
        product.Files.rows[1][Destination] = "%SYSDIR\\Sub";
    }

    ProgramRun Extract(const std::string& package, std::vector<std::string> more = {}) const
    {
        more.insert(more.begin(), {"extract", package, "--to", disk.Path("got")});
        return Quillonc(more);
    }
    void ExpectFiles() const
    {
        EXPECT_EQ(disk.Get("got/DESTDIR/Prog.exe"), std::string(5000, 'p'));
        EXPECT_EQ(disk.Get("got/SYSDIR/Sub/Läs mig.txt"), "text");
        EXPECT_TRUE(disk.Has("got/DESTDIR/Tom"));
    }
    static Text WindowsPath(const std::string& hostPath)
    {
        return "Z:" + ReplaceAll(hostPath, "/", "\\");
    }

    /// The package in "out" as a self-extracting program.
    std::string MakeProgram() const
    {
        PosixHost host(MachineSettings{.drives = {{'Z', "/"}, {'C', disk.Path("c")}}});
        std::vector<SolidSource> sources;
        for (const std::string& name : Names("out")) {
            const Text path = WindowsPath(disk.Path("out/" + name));
            const std::uint64_t size = host.files.Status(path).size;
            sources.push_back({{.name = name, .size = size, .runs = {{size, SolidFilter::None}}},
                               [&host, path] { return host.files.OpenInput(path); }});
        }
        const std::string stub = MakeProgramFile({});
        const std::string path = disk.Path("Setup.exe");
        const auto output = host.files.OpenOutput(WindowsPath(path));
        WriteSolid({}, sources, *output, {.program = std::as_bytes(std::span(stub)), .threads = 1});
        output->Close();
        return path;
    }
    std::string MakeSignedProgram() const
    {
        MakeProgram();
        const ProgramRun run =
            RunProgram({"/usr/bin/osslsigncode", "sign", "-certs", keys.Path("code.pem"), "-key",
                        keys.Path("code.key"), "-h", "sha256", "-in", disk.Path("Setup.exe"),
                        "-out", disk.Path("Signed.exe")});
        EXPECT_EQ(run.exitCode, 0) << run.err;
        return disk.Path("Signed.exe");
    }

    const Certificates& keys = Certificates::Shared();
    Project product;
};

TEST_F(Extracting, FindsTheFilesOfEveryMedium)
{
    const std::vector<std::vector<std::string>> media = {{"--medium", "cd"},
                                                         {"--medium", "cd", "--no-compress"},
                                                         {"--medium", "cd", "--separate"},
                                                         {"--medium", "floppy", "--continue"}};
    for (const auto& medium : media) {
        std::filesystem::remove_all(out);
        std::filesystem::remove_all(disk.Path("got"));
        disk.PutFolder("out");
        ASSERT_EQ(Create(Save(product), medium).exitCode, 0) << medium[1];
        const ProgramRun run = Extract(out);
        EXPECT_EQ(run.exitCode, 0) << run.err;
        EXPECT_EQ(run.out, "2 filer i '" + WindowsPath(disk.Path("got")) + "'.\n");
        ExpectFiles();
    }
}

TEST_F(Extracting, ATreeIsReadWhereItsAuthorHasLaidItOut)
{
    ASSERT_EQ(Create(Save(product), {"--medium", "tree"}).exitCode, 0);
    const ProgramRun missing = Extract(out);
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_THAT(missing.err, HasSubstr("F1 'Prog.exe': filen saknas i paketet.\n"));
    disk.Put("out/prog.exe", std::string(5000, 'p'));
    disk.Put("out/data/läs mig.txt", "text");
    EXPECT_EQ(Extract(out).exitCode, 0);
    ExpectFiles();
}

TEST_F(Extracting, AnEncryptedContainerOpensByThePackagesOwnWord)
{
    product.DialogBoxes.PasswordDlg = 1;
    product.DialogBoxData.CorrectPassword = "Räksmörgås";
    ASSERT_EQ(Create(Save(product)).exitCode, 0);
    EXPECT_EQ(Extract(out).exitCode, 0);
    ExpectFiles();
}

TEST_F(Extracting, WhatTheScreenShowsHasItsFolder)
{
    product.DesPictures.Pictures[0].PictureFilename = "s:\\logo.bmp";
    ASSERT_EQ(Create(Save(product)).exitCode, 0);
    EXPECT_EQ(Extract(out).exitCode, 0);
    EXPECT_EQ(disk.Get("got/DESOBJ/logo.bmp"), "BM logo");
}

TEST_F(Extracting, RowsOfEqualFilesNameTheirCommonEntry)
{
    disk.Put("src/Kopia.exe", std::string(5000, 'p'));
    Project equal = MakeProject({"Prog.exe", "Data\\Läs mig.txt", "Kopia.exe"});
    ASSERT_EQ(Create(Save(equal)).exitCode, 0);
    const Json rows = ObjectOf(Quillonc({"list", out, "--json"}))["rows"];
    EXPECT_EQ(rows[2]["entry"], "prog.exe");
    EXPECT_EQ(rows[0]["entryRows"], (Json{"F1", "F3"}));
    EXPECT_EQ(rows[2]["entryRows"], rows[0]["entryRows"]);
    const Json verified = ObjectOf(Quillonc({"verify", out, "--json"}));
    EXPECT_EQ(verified["isWhole"], true) << verified.dump();
    EXPECT_EQ(verified["rows"], 3);
    EXPECT_EQ(verified["entries"], 2);
    EXPECT_EQ(verified["kind"], "folder");
    EXPECT_EQ(verified["medium"], "cd");
    EXPECT_EQ(Extract(out).exitCode, 0);
    EXPECT_EQ(disk.Get("got/DESTDIR/Kopia.exe"), std::string(5000, 'p'));
}

TEST_F(Extracting, NoFileIsOverwrittenUnlessThatIsTold)
{
    ASSERT_EQ(Create(Save(product)).exitCode, 0);
    disk.Put("got/SYSDIR/Sub/Läs mig.txt", "mine");
    const ProgramRun run = Extract(out);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("Läs mig.txt' finns redan; --overwrite skriver över filer.\n"));
    EXPECT_EQ(disk.Get("got/SYSDIR/Sub/Läs mig.txt"), "mine");
    EXPECT_FALSE(disk.Has("got/DESTDIR")) << "nothing at all was written";
    EXPECT_EQ(Extract(out, {"--overwrite"}).exitCode, 0);
    ExpectFiles();
}

TEST_F(Extracting, ALinkLeadsNothingOutOfTheFolder)
{
    ASSERT_EQ(Create(Save(product)).exitCode, 0);
    disk.PutFolder("elsewhere");
    disk.PutFolder("got/SYSDIR");
    std::filesystem::create_directory_symlink(disk.Path("elsewhere"), disk.Path("got/SYSDIR/Sub"));
    disk.Put("elsewhere.txt", "mine");
    disk.PutFolder("got/DESTDIR");
    std::filesystem::create_symlink(disk.Path("elsewhere.txt"), disk.Path("got/DESTDIR/Prog.exe"));
    const ProgramRun run = Extract(out, {"--overwrite"});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("F2 'Läs mig.txt': "));
    EXPECT_THAT(Names("elsewhere"), IsEmpty());
    EXPECT_EQ(disk.Get("elsewhere.txt"), "mine");
    EXPECT_EQ(disk.Get("got/DESTDIR/Prog.exe"), std::string(5000, 'p'));
}

TEST_F(Extracting, AProgramIsUnpackedListedAndVerifiedWithoutBeingRun)
{
    ASSERT_EQ(Create(Save(product)).exitCode, 0);
    const std::string program = MakeProgram();
    const ProgramRun run = Extract(program);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_EQ(run.out, "Signatur: ingen.\n2 filer i '" + WindowsPath(disk.Path("got")) + "'.\n");
    ExpectFiles();
    EXPECT_EQ(Quillonc({"verify", program}).out,
              "Installationen är hel: 3 rader.\nSignatur: ingen.\n");
    const Json list = ObjectOf(Quillonc({"list", program, "--json"}));
    EXPECT_EQ(list["rows"].size(), 3U);
    EXPECT_EQ(list["signature"]["state"], "none");
    EXPECT_THAT(Names("tmp"), IsEmpty());
}

TEST_F(Extracting, TheSignatureOfAProgramIsTold)
{
    ASSERT_EQ(Create(Save(product)).exitCode, 0);
    const std::string program = MakeSignedProgram();
    const Json trusted =
        ObjectOf(Quillonc({"verify", program, "--trust", keys.Path("ca.pem"), "--json"}));
    EXPECT_EQ(trusted["isWhole"], true) << trusted.dump();
    EXPECT_EQ(trusted["kind"], "program");
    EXPECT_EQ(trusted["signature"], (Json{{"state", "intact"},
                                          {"trusted", true},
                                          {"signer", "Firma Åke AB"},
                                          {"issuer", "Prov CA"},
                                          {"stamped", nullptr},
                                          {"stampedBy", nullptr},
                                          {"fault", nullptr}}));
    const ProgramRun unknown = Quillonc({"verify", program});
    EXPECT_EQ(unknown.exitCode, 0);
    EXPECT_THAT(unknown.out, HasSubstr("Signatur: Firma Åke AB, utfärdad av Prov CA; certifikatet "
                                       "leder inte till en utgivare som datorn litar på.\n"));
}

TEST_F(Extracting, ADamagedProgramIsRefusedAndNothingWritten)
{
    ASSERT_EQ(Create(Save(product)).exitCode, 0);
    MakeProgram();
    std::string bytes = disk.Get("Setup.exe");
    bytes[bytes.size() / 2] = static_cast<char>(bytes[bytes.size() / 2] ^ 1);
    disk.Put("Setup.exe", bytes);
    const ProgramRun run = Extract(disk.Path("Setup.exe"));
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_THAT(run.err, HasSubstr("Setup.exe' är skadad: "));
    EXPECT_FALSE(disk.Has("got"));
    EXPECT_THAT(Names("tmp"), IsEmpty());
    EXPECT_EQ(ObjectOf(Quillonc({"verify", disk.Path("Setup.exe"), "--json"}))["exitCode"], 3);
}

TEST_F(Extracting, WhatIsNoPackageIsRefused)
{
    const ProgramRun file = Extract(disk.Path("src/Prog.exe"));
    EXPECT_EQ(file.exitCode, 3);
    EXPECT_THAT(file.err, HasSubstr("Prog.exe' är ingen installation.\n"));
    EXPECT_THAT(Extract(disk.Path("gone")).err, HasSubstr("gone' finns inte.\n"));
}

} // namespace
} // namespace quillon::test
