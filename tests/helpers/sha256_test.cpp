#include "helpers/sha256.h"

#include "helpers/sha256_blocks.h"
#include "helpers/sha256_instructions.h"

#include <fstream>

namespace quillon {
namespace {

Sha256Digest DigestOf(std::string_view bytes, std::size_t piece)
{
    Sha256 hash;
    for (; !bytes.empty(); bytes.remove_prefix(std::min(piece, bytes.size())))
        hash.Add(std::as_bytes(std::span(bytes.substr(0, piece))));
    return hash.Finish();
}

std::string Hex(const Sha256Digest& digest)
{
    std::string text;
    for (const std::byte byte : digest)
        for (const unsigned shift : {4U, 0U})
            text += "0123456789abcdef"[std::to_integer<unsigned>(byte) >> shift & 15U];
    return text;
}

// The examples of FIPS 180-2.
TEST(Sha256Test, GivesTheDigestsOfTheStandardsExamples)
{
    EXPECT_EQ(Hex(DigestOf("", 1)),
              "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(Hex(DigestOf("abc", 3)),
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(Hex(DigestOf("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq", 56)),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(Hex(DigestOf(std::string(1'000'000, 'a'), 65536)),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

using Mix = void (*)(Sha256State&, std::span<const std::byte>);

struct Way {
    const char* name;
    Mix mix;
};

// Whatever can compute it on this machine.
std::vector<Way> Ways()
{
    std::vector<Way> ways{{"plain code", MixSha256Portably}, {"library", MixSha256ByLibrary}};
    if (HasSha256Instructions())
        ways.push_back({"instructions", MixSha256ByInstructions});
    return ways;
}

// Blocks as the standard pads them, from its initial state.
std::string DigestBy(Mix mix, std::string bytes)
{
    const std::uint64_t bits = bytes.size() * 8;
    bytes += '\x80';
    bytes.resize((bytes.size() + 8 + kSha256BlockSize - 1) / kSha256BlockSize * kSha256BlockSize);
    for (std::size_t i = 0; i < 8; ++i)
        bytes[bytes.size() - 1 - i] = static_cast<char>(bits >> 8 * i);
    Sha256State state{0x6A09E667, 0xBB67AE85, 0x3C6EF372, 0xA54FF53A,
                      0x510E527F, 0x9B05688C, 0x1F83D9AB, 0x5BE0CD19};
    mix(state, std::as_bytes(std::span(bytes)));
    Sha256Digest digest;
    for (std::size_t i = 0; i < digest.size(); ++i)
        digest[i] = static_cast<std::byte>(state[i / 4] >> (24 - i % 4 * 8));
    return Hex(digest);
}

TEST(Sha256Test, GivesTheStandardsDigestsInEachWay)
{
    for (const auto& [name, mix] : Ways()) {
        EXPECT_EQ(DigestBy(mix, ""),
                  "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855")
            << name;
        EXPECT_EQ(DigestBy(mix, "abc"),
                  "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad")
            << name;
        EXPECT_EQ(DigestBy(mix, "abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
                  "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1")
            << name;
        EXPECT_EQ(DigestBy(mix, std::string(1'000'000, 'a')),
                  "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0")
            << name;
    }
}

TEST(Sha256Test, GoesOnFromAnyStateInEachWay)
{
    std::vector<std::byte> bytes(37 * kSha256BlockSize + 1);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::byte>(i * i % 251);
    for (const std::size_t blocks : {0U, 1U, 2U, 37U})
        for (const std::size_t odd : {0U, 1U}) {
            const auto input = std::span(bytes).subspan(odd, blocks * kSha256BlockSize);
            const Sha256State begin{1, 0xFFFFFFFF, 3, 0x80000000, 5, 0x7FFFFFFF, 7, 8};
            Sha256State plain = begin;
            MixSha256Portably(plain, input);
            for (const auto& [name, mix] : Ways()) {
                Sha256State state = begin;
                mix(state, input);
                EXPECT_EQ(state, plain) << name << ", " << blocks << " blocks from " << odd;
            }
        }
}

// The kernel's word for the processor. Where it has none, as on another kind of processor, there
// are no instructions either.
TEST(Sha256Test, TakesTheInstructionsWhereTheProcessorHasThem)
{
    std::ifstream file("/proc/cpuinfo");
    const std::string facts{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(HasSha256Instructions(), facts.find(" sha_ni") != std::string::npos);
}

TEST(Sha256Test, DoesNotDependOnHowTheBytesCome)
{
    for (const std::size_t size : {55U, 56U, 63U, 64U, 65U, 119U, 120U, 128U, 1000U}) {
        std::string bytes(size, '\0');
        for (std::size_t i = 0; i < size; ++i)
            bytes[i] = static_cast<char>(i * 7);
        for (const std::size_t piece : {1U, 3U, 63U, 64U, 65U, 127U})
            EXPECT_EQ(DigestOf(bytes, piece), DigestOf(bytes, size)) << size << " " << piece;
    }
}

} // namespace
} // namespace quillon
