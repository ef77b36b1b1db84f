// A line of the manifest PACKAGE.SHA256, in the form that sha256sum writes and checks. Nothing here
// asks for memory: the starter reads the manifest too.
#pragma once

#include "helpers/sha256.h"

#include <optional>
#include <string_view>

namespace quillon {

inline constexpr std::size_t kDigestDigits = 2 * std::tuple_size_v<Sha256Digest>;

struct ManifestLineText {
    std::string_view digits; // of the digest, hexadecimal
    std::string_view name;   // below the package's folder, with '/' between folders
};

/// Takes the first line off `text`; nothing where it does not have the form, or has no end.
std::optional<ManifestLineText> ParseManifestLine(std::string_view& text);

Sha256Digest DigestOfDigits(std::string_view digits);

} // namespace quillon
