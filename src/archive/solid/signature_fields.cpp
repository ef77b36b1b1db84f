#include "archive/solid/signature_fields.h"

#include "archive/zip_records.h"
#include "helpers/program_format.h"

namespace quillon {

namespace {

using namespace program_format;

constexpr auto kCertificateTable = static_cast<std::size_t>(DataDirectory::Certificates);

/// Numbers of the headers; those beyond their end are 0.
class HeaderNumbers {
public:
    explicit HeaderNumbers(std::span<const std::byte> bytes) : bytes_(bytes) {}

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
    const HeaderNumbers numbers(bytes);
    if (numbers.At<std::uint16_t>(0) != kDosMark)
        return std::nullopt;
    const std::size_t header = numbers.At<std::uint32_t>(kHeaderPosition);
    if (header > bytes.size() || numbers.At<std::uint32_t>(header) != kFileMark)
        return std::nullopt;
    const std::size_t optional = header + kFileHeaderSize;
    const std::uint16_t magic = numbers.At<std::uint16_t>(optional);
    if (magic != kMagic32 && magic != kMagic64)
        return std::nullopt;
    const std::size_t tables = optional + FirstTable(magic);
    if (numbers.At<std::uint32_t>(tables - 4) <= kCertificateTable)
        return std::nullopt;
    const std::size_t entry = tables + kCertificateTable * SignatureFields::kEntrySize;
    if (entry + SignatureFields::kEntrySize > bytes.size())
        return std::nullopt;
    return SignatureFields{.checksum = optional + kChecksum,
                           .entry = entry,
                           .tableBegin = numbers.At<std::uint32_t>(entry),
                           .tableSize = numbers.At<std::uint32_t>(entry + 4)};
}

} // namespace quillon
