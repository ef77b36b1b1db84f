#include "helpers/sha256.h"

#include "helpers/sha256_blocks.h"

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

TEST(Sha256Test, IsTheSameByTheLibraryAndInPlainCode)
{
    std::vector<std::byte> bytes(37 * kSha256BlockSize);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::byte>(i * i % 251);
    for (const std::size_t blocks : {0U, 1U, 2U, 37U}) {
        Sha256State plain{1, 2, 3, 4, 5, 6, 7, 8};
        Sha256State fast = plain;
        MixSha256Portably(plain, std::span(bytes).first(blocks * kSha256BlockSize));
        MixSha256ByLibrary(fast, std::span(bytes).first(blocks * kSha256BlockSize));
        EXPECT_EQ(plain, fast) << blocks;
    }
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
