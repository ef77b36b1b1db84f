// SHA-256 of a file with a solid payload, without the few bytes that a signature changes.
#pragma once

#include "archive/solid/signature_fields.h"
#include "helpers/sha256.h"

namespace quillon {

class SolidDigest {
public:
    /// `fields` are those of the program that the file begins with, if it begins with one.
    explicit SolidDigest(const std::optional<SignatureFields>& fields);

    /// The bytes of the file in their order, beginning with the first.
    void Add(std::span<const std::byte> bytes);
    Sha256Digest Finish() { return hash_.Finish(); }

private:
    struct Range {
        std::uint64_t begin = 0;
        std::uint64_t end = 0;
    };

    Range left_[2]; // left out, in the order of the file
    Sha256 hash_;
    std::uint64_t position_ = 0;
};

} // namespace quillon
