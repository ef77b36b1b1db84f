#ifndef _WIN32

// The functions that take a state from outside are deprecated; there are no others that allocate no
// memory.
#define OPENSSL_SUPPRESS_DEPRECATED

#include "helpers/sha256_blocks.h"

#include <algorithm>
#include <openssl/sha.h>

namespace quillon {

void MixSha256ByLibrary(Sha256State& state, std::span<const std::byte> blocks)
{
    SHA256_CTX context;
    SHA256_Init(&context);
    std::ranges::copy(state, context.h);
    SHA256_Update(&context, blocks.data(), blocks.size());
    std::copy_n(context.h, state.size(), state.begin());
}

} // namespace quillon

#endif
