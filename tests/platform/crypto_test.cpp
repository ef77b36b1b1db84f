// The vectors are those of the standards: RFC 6070, FIPS 197, RFC 2202.
#include "platform/crypto.h"

namespace quillon {
namespace {

std::span<const std::byte> BytesOf(std::string_view text)
{
    return std::as_bytes(std::span(text.data(), text.size()));
}

std::string Hex(std::span<const std::byte> bytes)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string hex;
    for (const std::byte byte : bytes) {
        hex += kDigits[std::to_integer<unsigned>(byte) >> 4U];
        hex += kDigits[std::to_integer<unsigned>(byte) & 15U];
    }
    return hex;
}

std::string Derived(std::string_view password, std::string_view salt, unsigned rounds,
                    std::size_t length)
{
    std::vector<std::byte> key(length);
    DeriveKey(password, BytesOf(salt), rounds, key);
    return Hex(key);
}

TEST(DeriveKey, GivesTheKeysOfTheStandard)
{
    EXPECT_EQ(Derived("password", "salt", 1, 20), "0c60c80f961f0e71f3a9b524af6012062fe037a6");
    EXPECT_EQ(Derived("password", "salt", 4096, 20), "4b007901b765489abead49d926f721d065a429c1");
    EXPECT_EQ(Derived("passwordPASSWORDpassword", "saltSALTsaltSALTsaltSALTsaltSALTsalt", 4096, 25),
              "3d2eec4fe41c849b80c8d83662c0e44a8b291a964cf2f07038");
    EXPECT_EQ(Derived(std::string_view("pass\0word", 9), std::string_view("sa\0lt", 5), 4096, 16),
              "56fa6aa75548099dcc37d7f03425e0c3");
}

std::array<std::byte, kAes256KeySize> CountingKey()
{
    std::array<std::byte, kAes256KeySize> key{};
    for (std::size_t i = 0; i < key.size(); ++i)
        key[i] = std::byte(i);
    return key;
}

TEST(AesEncryptor, EncryptsTheBlockOfTheStandard)
{
    std::vector<std::byte> block;
    for (unsigned i = 0; i < kAesBlockSize; ++i)
        block.push_back(std::byte(i * 0x11));
    std::vector<std::byte> encrypted(kAesBlockSize);
    AesEncryptor(CountingKey()).EncryptBlocks(block, encrypted);
    EXPECT_EQ(Hex(encrypted), "8ea2b7ca516745bfeafc49904b496089");
}

TEST(AesEncryptor, EncryptsEachBlockByItselfAndInPlace)
{
    std::vector<std::byte> blocks;
    for (unsigned i = 0; i < 3 * kAesBlockSize; ++i)
        blocks.push_back(std::byte(i % kAesBlockSize * 0x11));
    AesEncryptor encryptor(CountingKey());
    encryptor.EncryptBlocks(blocks, blocks);
    const std::string one = "8ea2b7ca516745bfeafc49904b496089";
    EXPECT_EQ(Hex(blocks), one + one + one);
}

std::string Code(std::string_view key, std::string_view text)
{
    HmacSha1 code(BytesOf(key));
    code.Add(BytesOf(text));
    return Hex(code.Finish());
}

TEST(HmacSha1, GivesTheCodesOfTheStandard)
{
    EXPECT_EQ(Code(std::string(20, '\x0b'), "Hi There"),
              "b617318655057264e28bc0b6fb378c8ef146be00");
    EXPECT_EQ(Code("Jefe", "what do ya want for nothing?"),
              "effcdf6ae5eb2fa2d27416d5f184df9c259a7c79");
    EXPECT_EQ(
        Code(std::string(80, '\xaa'), "Test Using Larger Than Block-Size Key - Hash Key First"),
        "aa4ae5e15272d00e95705637ce8a3b55ed402112");
}

TEST(HmacSha1, TakesItsTextInPieces)
{
    HmacSha1 code(BytesOf("Jefe"));
    code.Add(BytesOf("what do ya want "));
    code.Add({});
    code.Add(BytesOf("for nothing?"));
    EXPECT_EQ(Hex(code.Finish()), "effcdf6ae5eb2fa2d27416d5f184df9c259a7c79");
}

TEST(HmacSha1, TakesAnEmptyKey)
{
    EXPECT_EQ(Code("", ""), "fbdb1d1b18aa6c08324b7d64b71fb76370690e1d");
}

} // namespace
} // namespace quillon
