// The salts of encrypted entries. The same input gives the same package, so a salt can't be random.
#pragma once

#include "archive/zip_encryption.h"
#include "helpers/text.h"

#include <array>
#include <cstdint>
#include <span>

namespace quillon {

// No two different data may share a salt under the same password: they would share a key stream,
// and the difference of the two could be computed. So the salt is an HMAC over the data itself. Its
// key comes from the password by more rounds than those of the format; so the salt, which is stored
// in plain, does not make guessing passwords faster. All that it reveals is that two entries are
// the same in name and content.
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
