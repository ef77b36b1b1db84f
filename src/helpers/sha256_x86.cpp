// SHA-256 by the SHA extensions of x86 (Intel, "SHA Extensions", 2013). The instructions keep the
// state as ABEF and CDGH and do two rounds each; the message schedule goes on four words at a time.
#if defined(__x86_64__) && !defined(_WIN32)

#include "helpers/sha256_blocks.h"

#include <cpuid.h>
#include <immintrin.h>

namespace quillon {

namespace {

bool Ask()
{
    constexpr unsigned kSha = 1U << 29U; // leaf 7, EBX
    constexpr unsigned kSsse3 = 1U << 9U;
    constexpr unsigned kSse41 = 1U << 19U;
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
    if (!__get_cpuid_count(7, 0, &a, &b, &c, &d) || !(b & kSha))
        return false;
    return __get_cpuid(1, &a, &b, &c, &d) && (c & kSsse3) && (c & kSse41);
}

__m128i Load(const void* bytes)
{
    return _mm_loadu_si128(static_cast<const __m128i*>(bytes));
}

void Store(void* bytes, __m128i value)
{
    _mm_storeu_si128(static_cast<__m128i*>(bytes), value);
}

} // namespace

bool HasSha256Instructions()
{
    static const bool has = Ask();
    return has;
}

__attribute__((target("sha,sse4.1,ssse3"))) void
MixSha256ByInstructions(Sha256State& state, std::span<const std::byte> blocks)
{
    // Each word of the message is big-endian.
    const __m128i swapBytes = _mm_set_epi64x(0x0C0D0E0F08090A0B, 0x0405060700010203);
    const __m128i cdab = _mm_shuffle_epi32(Load(&state[0]), 0xB1);
    const __m128i efgh = _mm_shuffle_epi32(Load(&state[4]), 0x1B);
    __m128i abef = _mm_alignr_epi8(cdab, efgh, 8);
    __m128i cdgh = _mm_blend_epi16(efgh, cdab, 0xF0);
    for (; !blocks.empty(); blocks = blocks.subspan(kSha256BlockSize)) {
        const __m128i abefBefore = abef;
        const __m128i cdghBefore = cdgh;
        __m128i words[4]; // the last 16 of the schedule
        for (std::size_t i = 0; i < 16; ++i) {
            __m128i& next = words[i % 4];
            const __m128i& last = words[(i + 3) % 4];
            if (i < 4)
                next = _mm_shuffle_epi8(Load(blocks.data() + 16 * i), swapBytes);
            else
                next = _mm_sha256msg2_epu32(
                    _mm_add_epi32(_mm_sha256msg1_epu32(next, words[(i + 1) % 4]),
                                  _mm_alignr_epi8(last, words[(i + 2) % 4], 4)),
                    last);
            const __m128i sum = _mm_add_epi32(next, Load(&kSha256RoundConstants[4 * i]));
            cdgh = _mm_sha256rnds2_epu32(cdgh, abef, sum);
            abef = _mm_sha256rnds2_epu32(abef, cdgh, _mm_shuffle_epi32(sum, 0x0E));
        }
        abef = _mm_add_epi32(abef, abefBefore);
        cdgh = _mm_add_epi32(cdgh, cdghBefore);
    }
    const __m128i feba = _mm_shuffle_epi32(abef, 0x1B);
    const __m128i dchg = _mm_shuffle_epi32(cdgh, 0xB1);
    Store(&state[0], _mm_blend_epi16(feba, dchg, 0xF0));
    Store(&state[4], _mm_alignr_epi8(dchg, feba, 8));
}

} // namespace quillon

#endif
