#include "builder/zip_writer.h"

#include "builder/archive_tools.h"
#include "formats/container_names.h"
#include "support/memory_host.h"

#include <gtest/gtest.h>

#include <random>

namespace quillon {

using test::ExpectOtherProgramsTest;
using test::MemoryHost;
using test::OpenArchive;
using test::UnpackAll;
using test::UnpackBy7z;

namespace {

constexpr std::size_t kMiB = 1024 * 1024;

/// Bytes that no packer makes smaller.
std::string Noise(std::size_t size)
{
    std::mt19937_64 random(20040301);
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

/// Bytes that shrink, and that no two places share.
std::string Prose(std::size_t size)
{
    constexpr std::string_view kLetters = "etaoinshrdlu.,\r\n";
    std::mt19937_64 random(4711);
    std::string text(size, ' ');
    for (char& letter : text)
        letter = kLetters[random() % kLetters.size()];
    return text;
}

class ZipWriter : public testing::Test {
protected:
    void Put(const Text& path, std::string bytes)
    {
        host.files.Put(path, std::move(bytes));
        Text row = "F";
        row.append(std::to_string(sources.size() + 1));
        sources.push_back({path, ContainerEntryName(path), row});
    }

    std::string Write(const ZipOptions& options = {})
    {
        const auto output = host.files.OpenOutput("C:\\out.zip");
        WriteZip(host.files, sources, *output, options);
        output->Close();
        return host.files.Get("C:\\out.zip");
    }

    /// The number that the writer gives up with, and the file that it blames.
    std::pair<int, Text> Failure(const ZipOptions& options = {})
    {
        try {
            Write(options);
        } catch (const CompressionFailure& failure) {
            return {failure.Result(), failure.Path()};
        }
        ADD_FAILURE() << "the archive was written";
        return {};
    }

    void ExpectRoundTrip(const ZipOptions& options = {})
    {
        const std::string archive = Write(options);
        ExpectOtherProgramsTest(archive, options.password);
        const auto contents = UnpackAll(archive, options.password);
        EXPECT_EQ(contents.size(), sources.size());
        for (const ZipSource& source : sources) {
            EXPECT_TRUE(contents.at(source.name) == host.files.Get(source.path)) << source.name;
            EXPECT_TRUE(UnpackBy7z(archive, source.name, options.password) ==
                        host.files.Get(source.path))
                << source.name;
        }
    }

    MemoryHost host;
    std::vector<ZipSource> sources;
};

} // namespace

TEST_F(ZipWriter, WritesWhatTheReaderAndOtherProgramsReadBack)
{
    Put("C:\\Data\\empty.txt", "");
    Put("C:\\Data\\one.txt", "x");
    Put("C:\\Data\\Åäö €.txt", Prose(5000));
    Put("C:\\Data\\prose.txt", Prose(3 * kMiB));
    Put("C:\\Data\\noise.bin", Noise(100000));
    ExpectRoundTrip();
    ExpectRoundTrip({.deflate = false});
    ExpectRoundTrip({.password = "hemligt"});
    ExpectRoundTrip({.deflate = false, .password = "hemligt"});
}

TEST_F(ZipWriter, CutsLargeSourcesIntoBlocksAndJoinsThem)
{
    const std::size_t block = 4 * kMiB;
    Put("C:\\prose.txt", Prose(2 * block + 12345));
    Put("C:\\exact.txt", Prose(2 * block));
    Put("C:\\one more.txt", Prose(block + 1));
    Put("C:\\zeros.bin", std::string(3 * block, '\0'));
    Put("C:\\noise.bin", Noise(block + kMiB));
    Put("C:\\mixed.bin", Noise(block) + Prose(block) + Noise(block));
    ExpectRoundTrip();
    ExpectRoundTrip({.deflate = false});
    ExpectRoundTrip({.password = "hemligt"});
}

} // namespace quillon
