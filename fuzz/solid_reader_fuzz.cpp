// Payloads of any content: the packed bytes and the table in them, behind a trailer that fits, so
// that the digest does not keep the input from the rest; and the file as it is. Unpacking gives no
// more than the table says, and no name leaves the folder.
#include "archive/solid/solid_reader.h"

#include "archive/solid/solid_digest.h"
#include "archive/solid/solid_error.h"
#include "require.h"
#include "support/one_file_host.h"

using namespace quillon;

namespace {

class CountingSink : public SolidSink {
public:
    void Begin(const SolidFile& file) override
    {
        const Text inFolder = "/" + file.name + "/";
        Require(inFolder.find("/../") == Text::npos && inFolder.find("//") == Text::npos);
        Require(file.name.find_first_of(":\\") == Text::npos);
        left_ = file.size;
    }
    void Write(std::span<const std::byte> bytes) override
    {
        Require(bytes.size() <= left_);
        left_ -= bytes.size();
        written += bytes.size();
        // The input may say that it is as large as it likes.
        if (written > 8 * 1024 * 1024)
            throw SolidError(SolidError::Kind::Unsupported, "");
    }
    void End() override { Require(left_ == 0); }

    std::uint64_t written = 0;

private:
    std::uint64_t left_ = 0;
};

void Read(const std::string& file)
{
    const test::OneFile files(file);
    try {
        const SolidReader reader(files.OpenInput("C:\\a.exe"));
        CountingSink sink;
        reader.Extract(sink);
    } catch (const SolidError&) {
    }
}

/// The input as the packed bytes; its first two are the size of the table.
std::string Completed(std::string packed)
{
    if (packed.size() < 2)
        return packed;
    SolidTrailer trailer{.streamSize = packed.size() - 2};
    trailer.tableSize = static_cast<unsigned char>(packed[0]) |
                        std::uint64_t(static_cast<unsigned char>(packed[1])) << 8U;
    packed.erase(0, 2);
    zip::Bytes end;
    zip::AppendFields(end, trailer);
    packed.append(reinterpret_cast<const char*>(end.data()), end.size());
    SolidDigest digest(std::nullopt);
    digest.Add(std::as_bytes(std::span(packed)));
    const Sha256Digest hash = digest.Finish();
    return packed.append(reinterpret_cast<const char*>(hash.data()), hash.size());
}

void ReadTable(std::span<const std::byte> bytes)
{
    try {
        const SolidTable table = ReadSolidTable(bytes);
        Require(ReadSolidTable(SolidTableBytes(table)) == table);
    } catch (const SolidError&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(bytes), size);
    Read(input);
    Read(Completed(input));
    ReadTable(std::as_bytes(std::span(bytes, size)));
    return 0;
}
