// The few primitives that an encrypted archive takes (AES-256, HMAC-SHA1, PBKDF2), from the
// system's own well-kept library: OpenSSL here, CryptoAPI on Windows.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

namespace quillon {

inline constexpr std::size_t kAesBlockSize = 16;
inline constexpr std::size_t kAes256KeySize = 32;
inline constexpr std::size_t kSha1Size = 20;

/// PBKDF2 with HMAC-SHA1 (RFC 8018); fills `key`.
void DeriveKey(std::string_view password, std::span<const std::byte> salt, unsigned rounds,
               std::span<std::byte> key);

/// AES-256 in ECB mode over whole blocks: the building stone of the counter mode.
class AesEncryptor {
public:
    explicit AesEncryptor(std::span<const std::byte, kAes256KeySize> key);
    ~AesEncryptor();
    AesEncryptor(const AesEncryptor&) = delete;
    AesEncryptor& operator=(const AesEncryptor&) = delete;

    /// `in` and `out` have the same length, a multiple of the block size; they may be the same.
    void EncryptBlocks(std::span<const std::byte> in, std::span<std::byte> out);

private:
    struct State;
    std::unique_ptr<State> state_;
};

class HmacSha1 {
public:
    explicit HmacSha1(std::span<const std::byte> key);
    ~HmacSha1();
    HmacSha1(const HmacSha1&) = delete;
    HmacSha1& operator=(const HmacSha1&) = delete;

    void Add(std::span<const std::byte> bytes);
    std::array<std::byte, kSha1Size> Finish();

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillon
