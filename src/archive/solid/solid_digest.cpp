#include "archive/solid/solid_digest.h"

#include <algorithm>

namespace quillon {

SolidDigest::SolidDigest(const std::optional<SignatureFields>& fields)
{
    if (!fields)
        return;
    left_[0] = {fields->checksum, fields->checksum + SignatureFields::kChecksumSize};
    left_[1] = {fields->entry, fields->entry + SignatureFields::kEntrySize};
}

void SolidDigest::Add(std::span<const std::byte> bytes)
{
    for (const Range& range : left_) {
        if (position_ >= range.end)
            continue;
        const std::uint64_t before = range.begin > position_ ? range.begin - position_ : 0;
        const auto hashed = static_cast<std::size_t>(std::min<std::uint64_t>(before, bytes.size()));
        hash_.Add(bytes.first(hashed));
        position_ += hashed;
        bytes = bytes.subspan(hashed);
        const auto skipped =
            static_cast<std::size_t>(std::min<std::uint64_t>(range.end - position_, bytes.size()));
        position_ += skipped;
        bytes = bytes.subspan(skipped);
    }
    hash_.Add(bytes);
    position_ += bytes.size();
}

} // namespace quillon
