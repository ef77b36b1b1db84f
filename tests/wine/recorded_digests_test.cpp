// What the record of an installation says of each file, held against the file: the uninstaller and
// the next version see by it what the user has changed.
#include "formats/digest_text.h"
#include "helpers/sha256.h"
#include "runtime/journal/install_journal.h"
#include "wine/sample_product.h"

#include <gmock/gmock.h>

#include <random>

namespace quillon::test {
namespace {

std::string NoiseOf(std::size_t size)
{
    std::mt19937 random(7);
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

class RecordedDigests : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(RecordedDigests, AreThoseOfTheInstalledFiles)
{
    SampleProduct product;
    // Around what is handed from the thread that unpacks to the one that writes.
    for (const std::size_t size : {131071U, 131072U, 131073U, 5'000'011U})
        product.Add("Data", std::to_string(size) + ".bin", NoiseOf(size));
    product.Add("Data", "jämn.txt", std::string(4'000'000, 'x'));
    const WinePrefix prefix;
    EXPECT_EQ(prefix.Run(OnZ(MakePackage(product.Order(GetParam())) / "SETUP.EXE"), "/S"), 0U);
    const auto records = ReadInstallJournal(
        ReadBytes(prefix.OnHost("C:\\Program Files\\Provpaket Åäö\\QNXUNIN.LOG")));
    ASSERT_TRUE(records);
    std::size_t found = 0;
    for (const JournalRecord& record : *records) {
        const auto* const content = std::get_if<record::Content>(&record);
        if (content == nullptr)
            continue;
        ++found;
        const std::string bytes = ReadBytes(prefix.OnHost(content->path));
        Sha256 hash;
        hash.Add(std::as_bytes(std::span(bytes)));
        EXPECT_EQ(content->digest, DigestText(hash.Finish())) << content->path;
        EXPECT_EQ(content->size, bytes.size()) << content->path;
    }
    std::size_t installed = 0;
    for (const SampleFile& file : product.Files())
        installed += file.isInstalled ? 1 : 0;
    EXPECT_EQ(found, installed);
}

INSTANTIATE_TEST_SUITE_P(EachContainer, RecordedDigests,
                         testing::Values(std::vector<std::string>{"--medium", "cd"},
                                         std::vector<std::string>{"--medium", "cd", "--small"}));

} // namespace
} // namespace quillon::test
