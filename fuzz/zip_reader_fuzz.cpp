// Containers of any content: reading comes to an end, the entries share no bytes of the file, and
// none gives more than its size.
#include "archive/zip_reader.h"
#include "require.h"

#include "support/one_file_host.h"

using namespace quillon;

namespace {

void Extract(ZipReader& reader, const ZipEntry& entry)
{
    std::uint64_t unpacked = 0;
    const auto count = [&](std::span<const std::byte> bytes) { unpacked += bytes.size(); };
    try {
        reader.Extract(entry, "hemligt", count);
        Require(unpacked == entry.size);
    } catch (const ZipError&) {
        Require(unpacked <= entry.size);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const test::OneFile files(std::string(reinterpret_cast<const char*>(bytes), size));
    try {
        ZipReader reader(files.OpenInput("C:\\a.zip"));
        std::uint64_t packed = 0;
        bool hasTriedAPassword = false;
        for (const ZipEntry& entry : reader.Entries()) {
            packed += entry.packedSize;
            // Keys are made slow on purpose; one in each input is enough.
            if (!entry.isEncrypted || !hasTriedAPassword)
                Extract(reader, entry);
            hasTriedAPassword = hasTriedAPassword || entry.isEncrypted;
        }
        Require(packed <= size);
    } catch (const ZipError&) {
    }
    return 0;
}
