#include "runtime/install/background_writer.h"

#include "formats/digest_text.h"
#include "platform/run_error.h"

#include <gmock/gmock.h>

#include <thread>

namespace quillon {
namespace {

// What comes out, and by which threads; fails at a write where the test wants it.
class RecordingOutput : public OutputFile {
public:
    void Write(std::span<const std::byte> bytes) override
    {
        if (failsAt >= 0 && written.size() >= std::size_t(failsAt))
            throw RunError(ErrorNumber::kDiskFull, "C:\\stor.bin");
        written.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        hasOwnThread = hasOwnThread || std::this_thread::get_id() != owner;
    }
    void WriteAt(std::uint64_t, std::span<const std::byte>) override { FAIL(); }
    std::uint64_t Position() const override { return written.size(); }
    void Close() override {}

    std::string written;
    std::int64_t failsAt = -1;
    bool hasOwnThread = false;

private:
    std::thread::id owner = std::this_thread::get_id();
};

std::string Bytes(std::size_t size)
{
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i)
        bytes[i] = static_cast<char>(i * 31 + i / 65521);
    return bytes;
}

void AddAll(BackgroundWriter::File& file, std::string_view bytes, std::size_t piece)
{
    for (; !bytes.empty(); bytes.remove_prefix(std::min(piece, bytes.size())))
        file.Add(std::as_bytes(std::span(bytes.substr(0, piece))));
}

Text DigestOf(const std::string& bytes)
{
    Sha256 hash;
    hash.Add(std::as_bytes(std::span(bytes)));
    return DigestText(hash.Finish());
}

TEST(BackgroundWriterTest, WritesAndHashesEveryByteInOrder)
{
    BackgroundWriter writer;
    constexpr std::size_t kPiece = 128 * 1024;
    for (const std::size_t size : {std::size_t(0), std::size_t(1), kPiece - 1, kPiece, kPiece + 1,
                                   2 * kPiece, 3 * kPiece + 7, 40 * kPiece + 5})
        for (const std::size_t piece : {std::size_t(1000), std::size_t(65536), size + 1}) {
            const std::string bytes = Bytes(size);
            RecordingOutput output;
            BackgroundWriter::File file(writer, output);
            AddAll(file, bytes, piece);
            EXPECT_EQ(DigestText(file.Finish()), DigestOf(bytes)) << size << " by " << piece;
            EXPECT_TRUE(output.written == bytes) << size << " by " << piece;
        }
}

TEST(BackgroundWriterTest, WritesALargeFileBesideItsCallerAndASmallOneItself)
{
    BackgroundWriter writer;
    for (const bool isLarge : {true, false}) {
        RecordingOutput output;
        BackgroundWriter::File file(writer, output);
        AddAll(file, Bytes(isLarge ? 1'000'000 : 100'000), 65536);
        file.Finish();
        EXPECT_EQ(output.hasOwnThread, isLarge);
    }
}

TEST(BackgroundWriterTest, TellsItsCallerThatTheDiskIsFull)
{
    // The last one is in what the caller itself writes at the end.
    for (const std::int64_t failsAt : {0, 300'000, 7 * 128 * 1024}) {
        BackgroundWriter writer;
        RecordingOutput output;
        output.failsAt = failsAt;
        BackgroundWriter::File file(writer, output);
        try {
            AddAll(file, Bytes(1'000'001), 65536);
            file.Finish();
            ADD_FAILURE() << failsAt;
        } catch (const RunError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::kDiskFull) << failsAt;
            EXPECT_EQ(error.Path(), "C:\\stor.bin");
        }
    }
}

TEST(BackgroundWriterTest, GoesOnWithTheNextFileAfterOneThatFailed)
{
    BackgroundWriter writer;
    const std::string bytes = Bytes(700'000);
    {
        RecordingOutput full;
        full.failsAt = 0;
        BackgroundWriter::File file(writer, full);
        // Far enough for a piece to be handed over, whose failure is not asked for.
        file.Add(std::as_bytes(std::span(bytes)).first(200'000));
    }
    RecordingOutput output;
    BackgroundWriter::File file(writer, output);
    AddAll(file, bytes, 50'000);
    EXPECT_EQ(DigestText(file.Finish()), DigestOf(bytes));
    EXPECT_TRUE(output.written == bytes);
}

TEST(BackgroundWriterTest, WritesNothingMoreOnceItsFileIsGone)
{
    BackgroundWriter writer;
    RecordingOutput output;
    {
        BackgroundWriter::File file(writer, output);
        AddAll(file, Bytes(2'000'000), 65536);
    }
    const std::string written = output.written;
    BackgroundWriter::File next(writer, output);
    next.Finish();
    EXPECT_TRUE(output.written == written);
    EXPECT_GT(written.size(), 1'000'000U);
}

} // namespace
} // namespace quillon
