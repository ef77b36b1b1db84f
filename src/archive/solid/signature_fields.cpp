#include "archive/solid/signature_fields.h"

#include "archive/zip_records.h"

namespace quillon {

namespace {

constexpr std::size_t kPlaceOfHeader = 60;
constexpr std::size_t kFileHeaderSize = 24; // with the mark before it
constexpr std::size_t kChecksumInOptional = 64;
constexpr std::size_t kFirstTable32 = 96;
constexpr std::size_t kFirstTable64 = 112;
constexpr std::size_t kCertificateTable = 4; // its number among the tables

/// Numbers of the head; those beyond its end are 0.
class Head {
public:
    explicit Head(std::span<const std::byte> bytes) : bytes_(bytes) {}

    template <class Number>
    Number At(std::size_t position) const
    {
        if (position > bytes_.size() || bytes_.size() - position < sizeof(Number))
            return 0;
        return zip::ReadNumber<Number>(bytes_.subspan(position));
    }

private:
    std::span<const std::byte> bytes_;
};

} // namespace

std::optional<SignatureFields> FindSignatureFields(std::span<const std::byte> bytes)
{
    const Head head(bytes);
    if (head.At<std::uint16_t>(0) != 0x5A4D)
        return std::nullopt;
    const std::size_t header = head.At<std::uint32_t>(kPlaceOfHeader);
    if (header > bytes.size() || head.At<std::uint32_t>(header) != 0x4550)
        return std::nullopt;
    const std::size_t optional = header + kFileHeaderSize;
    const std::uint16_t magic = head.At<std::uint16_t>(optional);
    if (magic != 0x10B && magic != 0x20B)
        return std::nullopt;
    const std::size_t tables = optional + (magic == 0x20B ? kFirstTable64 : kFirstTable32);
    if (head.At<std::uint32_t>(tables - 4) <= kCertificateTable)
        return std::nullopt;
    const std::size_t entry = tables + kCertificateTable * SignatureFields::kEntrySize;
    if (entry + SignatureFields::kEntrySize > bytes.size())
        return std::nullopt;
    return SignatureFields{.checksum = optional + kChecksumInOptional,
                           .entry = entry,
                           .tableBegin = head.At<std::uint32_t>(entry),
                           .tableSize = head.At<std::uint32_t>(entry + 4)};
}

} // namespace quillon
