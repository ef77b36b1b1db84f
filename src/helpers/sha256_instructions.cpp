#include "helpers/sha256_instructions.h"

#include "helpers/sha256_constants.h"

#if defined(__x86_64__) || defined(__i386__)
#include <cpuid.h>
#include <immintrin.h>
#endif

namespace quillon {

#if defined(__x86_64__) || defined(__i386__)

namespace {

// How the instructions want the state: two registers, from the highest word to the lowest.
struct StateRegisters {
    __m128i abef;
    __m128i cdgh;
};

// Four rounds with four words of the message, to which their constants are added.
[[gnu::target("sha,sse4.1")]] inline void FourRounds(StateRegisters& state, __m128i words,
                                                     const std::uint32_t* constants)
{
    const __m128i sums =
        _mm_add_epi32(words, _mm_loadu_si128(reinterpret_cast<const __m128i*>(constants)));
    state.cdgh = _mm_sha256rnds2_epu32(state.cdgh, state.abef, sums);
    state.abef = _mm_sha256rnds2_epu32(state.abef, state.cdgh, _mm_shuffle_epi32(sums, 0x0E));
}

// The next four words of the message, from the sixteen before them.
[[gnu::target("sha,sse4.1")]] inline __m128i NextWords(const __m128i (&words)[4])
{
    const __m128i early = _mm_add_epi32(_mm_sha256msg1_epu32(words[0], words[1]),
                                        _mm_alignr_epi8(words[3], words[2], 4));
    return _mm_sha256msg2_epu32(early, words[3]);
}

[[gnu::target("sha,sse4.1")]] inline void MixBlock(StateRegisters& state, const std::byte* block)
{
    const __m128i bigEndian = _mm_set_epi64x(0x0C0D0E0F08090A0B, 0x0405060700010203);
    __m128i words[4];
    for (int i = 0; i < 4; ++i) {
        const auto* const four = reinterpret_cast<const __m128i*>(block) + i;
        words[i] = _mm_shuffle_epi8(_mm_loadu_si128(four), bigEndian);
        FourRounds(state, words[i], kSha256RoundConstants + 4 * i);
    }
    for (int i = 4; i < 16; ++i) {
        const __m128i next = NextWords(words);
        words[0] = words[1];
        words[1] = words[2];
        words[2] = words[3];
        words[3] = next;
        FourRounds(state, next, kSha256RoundConstants + 4 * i);
    }
}

[[gnu::target("sha,sse4.1")]] inline StateRegisters LoadState(const Sha256State& state)
{
    const auto* const halves = reinterpret_cast<const __m128i*>(state.data());
    const __m128i abcd = _mm_loadu_si128(halves);
    const __m128i efgh = _mm_loadu_si128(halves + 1);
    const __m128i cdab = _mm_shuffle_epi32(abcd, 0xB1);
    const __m128i hgfe = _mm_shuffle_epi32(efgh, 0x1B);
    return {_mm_alignr_epi8(cdab, hgfe, 8), _mm_blend_epi16(hgfe, cdab, 0xF0)};
}

[[gnu::target("sha,sse4.1")]] inline void StoreState(const StateRegisters& from, Sha256State& to)
{
    const __m128i feba = _mm_shuffle_epi32(from.abef, 0x1B);
    const __m128i dchg = _mm_shuffle_epi32(from.cdgh, 0xB1);
    auto* const halves = reinterpret_cast<__m128i*>(to.data());
    _mm_storeu_si128(halves, _mm_blend_epi16(feba, dchg, 0xF0));
    _mm_storeu_si128(halves + 1, _mm_alignr_epi8(dchg, feba, 8));
}

} // namespace

bool HasSha256Instructions()
{
    // A system that knows this bit keeps the registers of SSE when it changes threads; older ones
    // may not.
    constexpr unsigned kNeeded = bit_SSSE3 | bit_SSE4_1 | bit_OSXSAVE;
    constexpr unsigned kSha = 1U << 29U;
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
    if (!__get_cpuid(1, &a, &b, &c, &d) || (c & kNeeded) != kNeeded)
        return false;
    return __get_cpuid_count(7, 0, &a, &b, &c, &d) && (b & kSha) != 0;
}

// Windows starts 32-bit threads on a stack that these registers can't be saved to as it is.
[[gnu::target("sha,sse4.1")]]
#ifdef __i386__
[[gnu::force_align_arg_pointer]]
#endif
void MixSha256ByInstructions(Sha256State& state, std::span<const std::byte> blocks)
{
    StateRegisters registers = LoadState(state);
    for (; !blocks.empty(); blocks = blocks.subspan(kSha256BlockSize)) {
        const StateRegisters before = registers;
        MixBlock(registers, blocks.data());
        registers.abef = _mm_add_epi32(registers.abef, before.abef);
        registers.cdgh = _mm_add_epi32(registers.cdgh, before.cdgh);
    }
    StoreState(registers, state);
}

#else

bool HasSha256Instructions()
{
    return false;
}

void MixSha256ByInstructions(Sha256State& state, std::span<const std::byte> blocks)
{
    MixSha256Portably(state, blocks);
}

#endif

} // namespace quillon
