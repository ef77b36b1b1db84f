#include "formats/digest_text.h"

namespace quillon {

Text DigestText(const Sha256Digest& digest)
{
    Text digits;
    for (const std::byte byte : digest)
        for (const unsigned shift : {4U, 0U})
            digits += "0123456789abcdef"[std::to_integer<unsigned>(byte) >> shift & 15U];
    return digits;
}

} // namespace quillon
