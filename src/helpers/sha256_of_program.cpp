// For a Windows program that has no `MixSha256OfProgram` of its own. It is alone in this file, so
// that the linker leaves it out of one that has.
#ifdef _WIN32

#include "helpers/sha256_blocks.h"

namespace quillon {

void MixSha256OfProgram(Sha256State& state, std::span<const std::byte> blocks)
{
    MixSha256Portably(state, blocks);
}

} // namespace quillon

#endif
