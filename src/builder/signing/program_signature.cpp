#include "builder/signing/program_signature.h"

#include "archive/solid/signature_fields.h"
#include "helpers/program_headers.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::uint32_t kCertificateHeader = 8; // length, revision and type
constexpr std::uint16_t kSignedDataType = 2;
// No signature comes near this.
constexpr std::uint32_t kMaxSignature = 16 * 1024 * 1024;

std::string BytesAt(InputFile& program, std::uint64_t position, std::size_t count)
{
    std::string bytes(count, '\0');
    program.Seek(position);
    bytes.resize(program.Read(std::as_writable_bytes(std::span(bytes))));
    return bytes;
}

void DigestExtent(InputFile& program, std::uint64_t begin, std::uint64_t end, Sha256& digest)
{
    constexpr std::uint64_t kPiece = 64 * 1024;
    std::vector<std::byte> piece(kPiece);
    program.Seek(begin);
    while (begin < end) {
        const auto wanted = static_cast<std::size_t>(std::min(kPiece, end - begin));
        const std::size_t got = program.Read(std::span(piece).first(wanted));
        if (got == 0)
            return;
        digest.Add(std::span(piece).first(got));
        begin += got;
    }
}

Sha256Digest DigestWithoutSignature(InputFile& program, const SignatureFields& fields)
{
    Sha256 digest;
    DigestExtent(program, 0, fields.checksum, digest);
    DigestExtent(program, fields.checksum + SignatureFields::kChecksumSize, fields.entry, digest);
    DigestExtent(program, fields.entry + SignatureFields::kEntrySize, fields.tableBegin, digest);
    return digest.Finish();
}

ProgramSignature Damaged(const char* fault)
{
    ProgramSignature damaged;
    damaged.state = ProgramSignature::State::Signed;
    damaged.fault = fault;
    return damaged;
}

} // namespace

ProgramSignature ReadProgramSignature(InputFile& program, const Text& trustedRoots)
{
    const std::string headers = BytesAt(program, 0, kProgramHeadersSize);
    const auto fields = FindSignatureFields(std::as_bytes(std::span(headers)));
    ProgramSignature found;
    if (!fields)
        return found;
    if (fields->tableSize == 0) {
        found.state = ProgramSignature::State::Unsigned;
        return found;
    }
    // What follows the signature would be covered by nothing.
    if (fields->tableSize <= kCertificateHeader || fields->tableSize > kMaxSignature ||
        std::uint64_t(fields->tableBegin) + fields->tableSize != program.Size())
        return Damaged("signaturen ligger inte sist i filen");
    const std::string table = BytesAt(program, fields->tableBegin, fields->tableSize);
    const std::uint32_t length = table.size() == fields->tableSize ? LongAt(table, 0) : 0;
    if (length <= kCertificateHeader || length > table.size() ||
        ShortAt(table, 6) != kSignedDataType)
        return Damaged("signaturen är skadad");
    const std::string_view signature =
        std::string_view(table).substr(kCertificateHeader, length - kCertificateHeader);
    static_cast<SignatureInfo&>(found) =
        ReadSignatureData(std::as_bytes(std::span(signature)),
                          DigestWithoutSignature(program, *fields), trustedRoots);
    found.state = ProgramSignature::State::Signed;
    return found;
}

} // namespace quillon
