// The Internet medium from end to end: a tree of files becomes one signed and stamped program,
// which quillonc and the signing program look into, and which is unpacked, damaged and cut.
#include "archive/solid/signature_fields.h"
#include "archive/solid/solid_error.h"
#include "archive/solid/solid_reader.h"
#include "support/certificates.h"
#include "support/one_file_host.h"
#include "support/program_file.h"
#include "support/stamp_server.h"
#include "workshop.h"

#include <random>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// The bytes of each file below the folder, by its path there.
std::map<std::string, std::string> TreeOf(const TempFolder& disk, const std::string& folder)
{
    std::map<std::string, std::string> tree;
    for (const auto& entry : fs::recursive_directory_iterator(disk.Path(folder)))
        if (entry.is_regular_file()) {
            const std::string name = fs::relative(entry.path(), disk.Path(folder));
            tree[name] = disk.Get(folder + "/" + name);
        }
    return tree;
}

bool IsRefused(const std::string& program)
{
    try {
        const SolidReader reader(std::make_unique<BytesInput>(program));
        return false;
    } catch (const SolidError&) {
        return true;
    }
}

class InternetProgram : public Workshop {
protected:
    InternetProgram()
    {
        for (const char* program : {"SETUP32.EXE", "Small32/QNS32X.EXE", "Full32/QNS32X.EXE",
                                    "DUNZIP32.DLL", "QNREG32.EXE", "QNXREG2.EXE", "QNXUNIN.EXE"})
            disk.Put(std::string("tool/Release/") + program, MakeProgramFile({}) + program);
        disk.Put("src/Prog.exe", MakeProgramFile({}) + std::string(70'000, '\xE8'));
        disk.Put("src/Data/Läs mig.txt", "Räksmörgås\r\n");
        disk.Put("src/Data/Tom.dat", "");
        disk.Put("src/Data/Djupt ned/Kopia.txt", "Räksmörgås\r\n");
        disk.PutFolder("tmp");
        environment["TMPDIR"] = disk.Path("tmp");
        project = disk.Path("tree.qnp");
        EXPECT_EQ(
            Quillonc({"new", project, "--name", "Träd", "--destination", "%PROGRAMFILES\\Träd"})
                .exitCode,
            0);
        const ProgramRun added =
            Quillonc({"add-tree", project, disk.Path("src"), "--to", "%DESTDIR", "--continue"});
        EXPECT_EQ(added.exitCode, 0) << added.out << added.err;
    }

    ProgramRun CreateSigned(const std::string& stampAddress) const
    {
        return Create(project, {"--medium", "internet", "--sign-cert", keys.Path("code.pem"),
                                "--sign-key", keys.Path("code.key"), "--timestamp", stampAddress});
    }
    std::string Made() const { return disk.Path("out/self.exe"); }
    /// The program with one bit of it turned.
    static std::string Damaged(std::string bytes, std::size_t place, unsigned bit = 0)
    {
        bytes[place] = static_cast<char>(bytes[place] ^ (1 << bit));
        return bytes;
    }

    const Certificates& keys = Certificates::Shared();
    std::string project;
};

TEST_F(InternetProgram, IsSignedStampedAndHoldsTheWholeTree)
{
    StampServer server(keys, StampServer::Knows::Rfc3161);
    const ProgramRun run = CreateSigned(server.Address());
    ASSERT_EQ(run.exitCode, 0) << run.out << run.err;
    EXPECT_THAT(Names("out"), ElementsAre("self.exe"));
    EXPECT_EQ(server.Requests(), 4); // starter, setup, unzip library, and the program of them all

    const Json verified =
        ObjectOf(Quillonc({"verify", Made(), "--trust", keys.Path("ca.pem"), "--json"}));
    EXPECT_EQ(verified["exitCode"], 0);
    EXPECT_EQ(verified["isWhole"], true) << verified.dump();
    EXPECT_EQ(verified["kind"], "program");
    EXPECT_EQ(verified["medium"], "internet");
    EXPECT_EQ(verified["rows"], 4);
    EXPECT_EQ(verified["entries"], 3) << "equal files are one entry";
    EXPECT_EQ(verified["signature"]["state"], "intact");
    EXPECT_EQ(verified["signature"]["trusted"], true);
    EXPECT_EQ(verified["signature"]["signer"], "Firma Åke AB");
    EXPECT_EQ(verified["signature"]["stampedBy"], "Prov Stamp");

    const ProgramRun other =
        RunProgram({"/usr/bin/osslsigncode", "verify", "-CAfile", keys.Path("ca.pem"),
                    "-TSA-CAfile", keys.Path("ca.pem"), "-in", Made()});
    EXPECT_EQ(other.exitCode, 0) << other.out << other.err;

    const ProgramRun extracted = Quillonc({"extract", Made(), "--to", disk.Path("got")});
    EXPECT_EQ(extracted.exitCode, 0) << extracted.err;
    EXPECT_EQ(TreeOf(disk, "got/DESTDIR"), TreeOf(disk, "src"));
    EXPECT_THAT(Names("tmp"), IsEmpty());
}

TEST_F(InternetProgram, IsListedAsAProgramAndAFolderAsAFolder)
{
    ASSERT_EQ(CreateSigned("none").exitCode, 0);
    const Json program = ObjectOf(Quillonc({"list", Made(), "--json"}));
    EXPECT_EQ(program["kind"], "program");
    EXPECT_EQ(program["rows"].size(), 4U);
    EXPECT_EQ(program["signature"]["state"], "intact");
    EXPECT_EQ(program["signature"]["stamped"], nullptr);
    ASSERT_EQ(Create(project, {"--medium", "cd", "--continue"}).exitCode, 0);
    const Json folder = ObjectOf(Quillonc({"list", out, "--json"}));
    EXPECT_EQ(folder["kind"], "folder");
    EXPECT_FALSE(folder.contains("signature"));
}

// The setup's own reader says so, before it gives out a byte.
TEST_F(InternetProgram, IsRefusedWithAnyBitTurnedAndWithAnyByteCutOff)
{
    ASSERT_EQ(CreateSigned("none").exitCode, 0);
    const std::string whole = disk.Get("out/self.exe");
    ASSERT_FALSE(IsRefused(whole));
    const auto fields = FindSignatureFields(std::as_bytes(std::span(whole)));
    ASSERT_TRUE(fields && fields->tableSize > 0);

    std::mt19937 random(2026);
    for (int tried = 0; tried < 1000;) {
        const std::size_t place = random() % fields->tableBegin;
        // Windows keeps a sum of its own there, which changes with a signature.
        if (place - fields->checksum < SignatureFields::kChecksumSize)
            continue;
        ++tried;
        EXPECT_TRUE(IsRefused(Damaged(whole, place, random() % 8))) << place;
    }
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_TRUE(IsRefused(whole.substr(0, length))) << length;
}

TEST_F(InternetProgram, IsNamedByQuilloncAsDamagedOrWithABrokenSignature)
{
    ASSERT_EQ(CreateSigned("none").exitCode, 0);
    const std::string whole = disk.Get("out/self.exe");
    const auto fields = FindSignatureFields(std::as_bytes(std::span(whole)));
    ASSERT_TRUE(fields.has_value());
    for (const char* call : {"list", "verify"})
        for (const std::string& bytes :
             {Damaged(whole, fields->tableBegin / 2), whole.substr(0, whole.size() - 1)}) {
            disk.Put("out/self.exe", bytes);
            const ProgramRun run = Quillonc({call, Made()});
            EXPECT_EQ(run.exitCode, 3) << call;
            EXPECT_THAT(run.err, HasSubstr("self.exe' är skadad: ")) << call;
        }
    // Unpacking does not depend on the signature, but a check of it finds the change.
    disk.Put("out/self.exe", Damaged(whole, whole.size() - 40));
    const ProgramRun verified = Quillonc({"verify", Made()});
    EXPECT_EQ(verified.exitCode, 1);
    EXPECT_THAT(verified.out, HasSubstr("Signaturen håller inte: signaturen stämmer inte med sitt "
                                        "certifikat.\n"));
}

} // namespace
} // namespace quillon::test
