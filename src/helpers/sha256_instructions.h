// The compression function of SHA-256 by the processor's own instructions, which are five to ten
// times as fast as plain code. Processors of Intel have them since 2019 (small ones since 2016),
// those of AMD since 2017.
#pragma once

#include "helpers/sha256_blocks.h"

namespace quillon {

/// Whether this processor has them, under a system that keeps the registers that they need.
bool HasSha256Instructions();

/// Only where there are such instructions. `blocks` as for `MixSha256Portably`.
void MixSha256ByInstructions(Sha256State& state, std::span<const std::byte> blocks);

} // namespace quillon
