// The container of several disks, cut anywhere and with any content: the first bytes say where it
// is cut. The pieces joined are read as the whole is, in whatever steps.
#include "archive/joined_input.h"
#include "archive/zip_reader.h"
#include "require.h"

#include "support/one_file_host.h"

using namespace quillon;

namespace {

constexpr std::size_t kCuts = 3;

std::vector<std::string> CutUp(std::string_view bytes)
{
    std::vector<std::string> pieces;
    std::size_t cuts[kCuts] = {};
    for (std::size_t& cut : cuts) {
        if (bytes.size() < 2)
            break;
        cut = static_cast<unsigned char>(bytes[0]) * 256U + static_cast<unsigned char>(bytes[1]);
        bytes.remove_prefix(2);
    }
    for (const std::size_t cut : cuts) {
        pieces.emplace_back(bytes.substr(0, cut));
        bytes.remove_prefix(std::min(cut, bytes.size()));
    }
    pieces.emplace_back(bytes);
    return pieces;
}

std::unique_ptr<InputFile> Joined(const std::vector<std::string>& pieces)
{
    std::vector<std::unique_ptr<InputFile>> files;
    for (const std::string& piece : pieces)
        files.push_back(std::make_unique<test::BytesInput>(piece));
    return std::make_unique<JoinedInput>(std::move(files));
}

/// What there is to say of an archive: its entries, and what each of them gives.
std::string OutcomeOfReading(std::unique_ptr<InputFile> file)
{
    std::string outcome;
    try {
        ZipReader reader(std::move(file));
        for (const ZipEntry& entry : reader.Entries()) {
            outcome += entry.name + "|" + entry.comment + "|" + std::to_string(entry.size) + "\n";
            if (!entry.isEncrypted)
                reader.Extract(entry, {}, [&](std::span<const std::byte> bytes) {
                    outcome.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
                });
        }
    } catch (const ZipError& error) {
        outcome += error.what();
    }
    return outcome;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::vector<std::string> pieces = CutUp({reinterpret_cast<const char*>(bytes), size});
    std::string whole;
    for (const std::string& piece : pieces)
        whole += piece;
    Require(Joined(pieces)->Size() == whole.size());
    Require(OutcomeOfReading(Joined(pieces)) ==
            OutcomeOfReading(std::make_unique<test::BytesInput>(whole)));
    return 0;
}
