// How a digest is written: as sha256sum writes it.
#pragma once

#include "helpers/sha256.h"
#include "helpers/text.h"

namespace quillon {

/// 64 hexadecimal digits in lower case.
Text DigestText(const Sha256Digest& digest);

} // namespace quillon
