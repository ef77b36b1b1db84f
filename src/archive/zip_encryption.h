// The encryption of a ZIP entry, WinZip's AES-256: keys from the password by PBKDF2 with 1000
// rounds, counter mode, and the first ten bytes of an HMAC-SHA1 over what is encrypted. Before the
// data come the salt and a verifier of the password, after it the HMAC.
#pragma once

#include "helpers/text.h"
#include "platform/crypto.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace quillon::zip {

inline constexpr std::size_t kSaltSize = 16;
inline constexpr std::size_t kVerifierSize = 2;
inline constexpr std::size_t kAuthenticationSize = 10;
/// What encryption adds to an entry.
inline constexpr std::size_t kEncryptionSize = kSaltSize + kVerifierSize + kAuthenticationSize;

using Salt = std::array<std::byte, kSaltSize>;
using Verifier = std::array<std::byte, kVerifierSize>;
using Authentication = std::array<std::byte, kAuthenticationSize>;

/// The encryption of one entry, from its first byte to its last.
class EntryCipher {
public:
    EntryCipher(const Text& password, const Salt& salt);

    /// Tells a wrong password in all but one of 65,536 cases.
    const Verifier& PasswordVerifier() const { return verifier_; }

    void Encrypt(std::span<std::byte> bytes);
    void Decrypt(std::span<std::byte> bytes);
    /// Called once, after the last byte.
    Authentication Finish();

private:
    void ApplyKeyStream(std::span<std::byte> bytes);
    void RefillKeyStream();

    std::optional<AesEncryptor> aes_;
    std::optional<HmacSha1> hmac_;
    Verifier verifier_{};
    std::uint64_t counter_ = 0;
    std::array<std::byte, 4096> keyStream_{};
    std::size_t used_ = keyStream_.size();
};

} // namespace quillon::zip
