// The salts of encrypted entries. The same input gives the same package, so a salt can't be random.
#pragma once

#include "archive/zip_encryption.h"
#include "helpers/text.h"

#include <array>
#include <cstdint>
#include <span>

namespace quillon {

// What matters about a salt is that no two different data ever share one under the same password:
// they would share a key stream, and whoever has both could tell one from the other. So it is an
// HMAC over what is encrypted itself. Its key comes from the password by many rounds, more than
// those of the format; so a salt, which anybody can read, helps nobody to try passwords faster. All
// that it reveals is that two entries are the same in name and content.
class SaltMaker {
public:
    explicit SaltMaker(const Text& password);

    struct Entry {
        const Text& name;
        std::uint64_t size = 0;
        std::uint16_t method = 0;
    };
    /// `data` is what will be encrypted; of an entry that does not fit into memory it is the
    /// beginning alone, and `contentDigest` stands for the rest.
    zip::Salt Make(const Entry& entry, std::span<const std::byte> data,
                   std::span<const std::byte> contentDigest = {}) const;

    /// To be given the whole content piece by piece.
    HmacSha1 StartContentDigest() const { return HmacSha1(contentKey_); }

private:
    std::array<std::byte, kAes256KeySize> saltKey_{};
    std::array<std::byte, kAes256KeySize> contentKey_{};
};

} // namespace quillon
