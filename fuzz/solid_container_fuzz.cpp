// Solid containers of any content: the index and the packed bytes of the frames, with digests and a
// trailer that fit, so that these do not keep the input from the rest; the index alone; and the
// file as it is. Each file is as long as the index says, and comes out the same in any order.
#include "archive/solid/solid_container.h"

#include "archive/solid/container_index.h"
#include "archive/solid/package_container.h"
#include "require.h"
#include "support/complete_container.h"
#include "support/one_file_host.h"

#include <optional>
#include <vector>

using namespace quillon;

namespace {

constexpr std::uint64_t kEnough = 1024 * 1024;

/// Nothing where the file is damaged.
std::optional<Sha256Digest> DigestOf(Container& container, const ZipEntry& entry)
{
    Sha256 digest;
    std::uint64_t size = 0;
    try {
        container.Extract(entry, {}, [&](std::span<const std::byte> bytes) {
            size += bytes.size();
            Require(size <= entry.size);
            digest.Add(bytes);
        });
    } catch (const ZipError&) {
        return std::nullopt;
    }
    Require(size == entry.size);
    return digest.Finish();
}

void Read(const std::string& file)
{
    try {
        const auto container = OpenAnyContainer(std::make_unique<test::BytesInput>(file));
        std::vector<std::optional<Sha256Digest>> digests;
        for (const ZipEntry& entry : container->Entries())
            // The input may say that it is as large as it likes.
            digests.push_back(entry.size > kEnough ? std::nullopt : DigestOf(*container, entry));
        for (std::size_t i = digests.size(); i-- > 0;)
            if (digests[i])
                Require(DigestOf(*container, container->Entries()[i]) == digests[i]);
    } catch (const ZipError&) {
    }
}

void ReadIndex(std::span<const std::byte> bytes)
{
    try {
        const ContainerIndex index = ReadContainerIndex(bytes);
        const zip::Bytes written = ContainerIndexBytes(index);
        Require(ContainerIndexBytes(ReadContainerIndex(written)) == written);
    } catch (const ZipError&) {
    }
}

/// The first two bytes are the length of the index, which follows; all else are the frames.
void ReadCompleted(const std::string& input)
{
    if (input.size() < 2)
        return;
    const auto byteAt = [&](std::size_t i) -> std::size_t {
        return static_cast<unsigned char>(input[i]);
    };
    const std::size_t length = std::min(input.size() - 2, byteAt(0) | byteAt(1) << 8U);
    const std::string bytes = input.substr(2, length);
    try {
        const ContainerIndex index = ReadContainerIndex(std::as_bytes(std::span(bytes)));
        Read(test::CompleteContainer(index, input.substr(2 + length)));
    } catch (const ZipError&) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string input(reinterpret_cast<const char*>(bytes), size);
    // A ZIP file has a target of its own.
    test::BytesInput file(input);
    if (IsSolidContainer(file))
        Read(input);
    ReadIndex(std::as_bytes(std::span(bytes, size)));
    ReadCompleted(input);
    return 0;
}
