#include "archive/writer/entry_salt.h"

#include "archive/zip_records.h"

#include <algorithm>
#include <string_view>

namespace quillon {

namespace {

constexpr unsigned kRounds = 20000;
constexpr std::string_view kSaltPurpose = "Quillon: salt of an entry";
constexpr std::string_view kContentPurpose = "Quillon: content of an entry";

std::span<const std::byte> BytesOf(std::string_view text)
{
    return std::as_bytes(std::span(text));
}

} // namespace

SaltMaker::SaltMaker(const Text& password)
{
    DeriveKey(password, BytesOf(kSaltPurpose), kRounds, saltKey_);
    DeriveKey(password, BytesOf(kContentPurpose), kRounds, contentKey_);
}

zip::Salt SaltMaker::Make(const Entry& entry, std::span<const std::byte> data,
                          std::span<const std::byte> contentDigest) const
{
    // The lengths precede the texts, so that no two entries give the same bytes.
    zip::Bytes header;
    AppendNumber(header, entry.method);
    AppendNumber(header, entry.size);
    AppendNumber(header, std::uint64_t(entry.name.size()));
    AppendNumber(header, std::uint64_t(contentDigest.size()));
    HmacSha1 hmac(saltKey_);
    hmac.Add(header);
    hmac.Add(BytesOf(entry.name));
    hmac.Add(contentDigest);
    hmac.Add(data);
    const std::array<std::byte, kSha1Size> whole = hmac.Finish();
    zip::Salt salt{};
    std::copy_n(whole.begin(), salt.size(), salt.begin());
    return salt;
}

} // namespace quillon
