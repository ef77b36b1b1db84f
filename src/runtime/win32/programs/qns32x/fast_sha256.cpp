// The setup hashes the whole package and every file that it installs, so it takes the processor's
// own instructions where there are any.
#include "helpers/sha256_instructions.h"

namespace quillon {

namespace {

const bool kHasInstructions = HasSha256Instructions();

} // namespace

void MixSha256OfProgram(Sha256State& state, std::span<const std::byte> blocks)
{
    if (kHasInstructions)
        MixSha256ByInstructions(state, blocks);
    else
        MixSha256Portably(state, blocks);
}

} // namespace quillon
