#include "archive/zip_encryption.h"

#include <algorithm>

namespace quillon::zip {

namespace {

constexpr unsigned kRounds = 1000;
constexpr std::size_t kKeysSize = 2 * kAes256KeySize + kVerifierSize;

} // namespace

EntryCipher::EntryCipher(const Text& password, const Salt& salt)
{
    std::array<std::byte, kKeysSize> keys{};
    DeriveKey(password, salt, kRounds, keys);
    const std::span<const std::byte, kKeysSize> all(keys);
    aes_.emplace(all.first<kAes256KeySize>());
    hmac_.emplace(all.subspan<kAes256KeySize, kAes256KeySize>());
    std::ranges::copy(all.last<kVerifierSize>(), verifier_.begin());
}

void EntryCipher::Encrypt(std::span<std::byte> bytes)
{
    ApplyKeyStream(bytes);
    hmac_->Add(bytes);
}

void EntryCipher::Decrypt(std::span<std::byte> bytes)
{
    hmac_->Add(bytes);
    ApplyKeyStream(bytes);
}

Authentication EntryCipher::Finish()
{
    const std::array<std::byte, kSha1Size> whole = hmac_->Finish();
    Authentication first{};
    std::copy_n(whole.begin(), first.size(), first.begin());
    return first;
}

void EntryCipher::ApplyKeyStream(std::span<std::byte> bytes)
{
    while (!bytes.empty()) {
        if (used_ == keyStream_.size())
            RefillKeyStream();
        const std::size_t count = std::min(bytes.size(), keyStream_.size() - used_);
        for (std::size_t i = 0; i < count; ++i)
            bytes[i] ^= keyStream_[used_ + i];
        used_ += count;
        bytes = bytes.subspan(count);
    }
}

// The counter is a little-endian number of 16 bytes that begins with 1; an entry never comes to
// the upper eight.
void EntryCipher::RefillKeyStream()
{
    for (std::size_t block = 0; block < keyStream_.size(); block += kAesBlockSize) {
        ++counter_;
        for (std::size_t i = 0; i < kAesBlockSize; ++i)
            keyStream_[block + i] =
                i < sizeof(counter_) ? static_cast<std::byte>(counter_ >> (8 * i)) : std::byte{0};
    }
    aes_->EncryptBlocks(keyStream_, keyStream_);
    used_ = 0;
}

} // namespace quillon::zip
