#include "formats/digest_text.h"

#include "helpers/hex.h"

namespace quillon {

Text DigestText(const Sha256Digest& digest)
{
    Text digits;
    for (const std::byte byte : digest)
        for (const unsigned shift : {4U, 0U})
            digits += kSmallHexDigits[std::to_integer<unsigned>(byte) >> shift & 15U];
    return digits;
}

} // namespace quillon
