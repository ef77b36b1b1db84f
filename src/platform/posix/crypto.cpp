#include "platform/crypto.h"

#include <algorithm>
#include <cassert>
#include <limits>
#include <new>
#include <openssl/core_names.h>
#include <openssl/evp.h>
#include <openssl/params.h>

namespace quillon {

namespace {

template <class Object, void (*Free)(Object*)>
struct Freeing {
    void operator()(Object* object) const { Free(object); }
};

using CipherContext = std::unique_ptr<EVP_CIPHER_CTX, Freeing<EVP_CIPHER_CTX, EVP_CIPHER_CTX_free>>;
using Mac = std::unique_ptr<EVP_MAC, Freeing<EVP_MAC, EVP_MAC_free>>;
using MacContext = std::unique_ptr<EVP_MAC_CTX, Freeing<EVP_MAC_CTX, EVP_MAC_CTX_free>>;

// With the arguments used here the library can fail for lack of memory alone.
void Require(bool succeeded)
{
    if (!succeeded)
        throw std::bad_alloc();
}

const unsigned char* Bytes(std::span<const std::byte> bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

unsigned char* Bytes(std::span<std::byte> bytes)
{
    return reinterpret_cast<unsigned char*>(bytes.data());
}

} // namespace

void DeriveKey(std::string_view password, std::span<const std::byte> salt, unsigned rounds,
               std::span<std::byte> key)
{
    Require(PKCS5_PBKDF2_HMAC(password.data(), static_cast<int>(password.size()), Bytes(salt),
                              static_cast<int>(salt.size()), static_cast<int>(rounds), EVP_sha1(),
                              static_cast<int>(key.size()), Bytes(key)) == 1);
}

struct AesEncryptor::State {
    CipherContext context{EVP_CIPHER_CTX_new()};
};

AesEncryptor::AesEncryptor(std::span<const std::byte, kAes256KeySize> key)
    : state_(std::make_unique<State>())
{
    Require(state_->context != nullptr);
    EVP_CIPHER_CTX* context = state_->context.get();
    Require(EVP_EncryptInit_ex(context, EVP_aes_256_ecb(), nullptr, Bytes(key), nullptr) == 1);
    Require(EVP_CIPHER_CTX_set_padding(context, 0) == 1);
}

AesEncryptor::~AesEncryptor() = default;

void AesEncryptor::EncryptBlocks(std::span<const std::byte> in, std::span<std::byte> out)
{
    assert(in.size() == out.size() && in.size() % kAesBlockSize == 0);
    constexpr std::size_t kMaxChunkSize = std::size_t(1) << 30U;
    while (!in.empty()) {
        const std::size_t piece = std::min(in.size(), kMaxChunkSize);
        int written = 0;
        Require(EVP_EncryptUpdate(state_->context.get(), Bytes(out), &written, Bytes(in),
                                  static_cast<int>(piece)) == 1);
        in = in.subspan(piece);
        out = out.subspan(piece);
    }
}

struct HmacSha1::State {
    Mac mac{EVP_MAC_fetch(nullptr, "HMAC", nullptr)};
    MacContext context{mac ? EVP_MAC_CTX_new(mac.get()) : nullptr};
};

HmacSha1::HmacSha1(std::span<const std::byte> key) : state_(std::make_unique<State>())
{
    Require(state_->context != nullptr);
    char digest[] = "SHA1";
    const OSSL_PARAM parameters[] = {
        OSSL_PARAM_construct_utf8_string(OSSL_MAC_PARAM_DIGEST, digest, 0),
        OSSL_PARAM_construct_end()};
    // A null key would keep the one before; an empty one must still be a key.
    const unsigned char none = 0;
    const unsigned char* keyBytes = key.empty() ? &none : Bytes(key);
    Require(EVP_MAC_init(state_->context.get(), keyBytes, key.size(), parameters) == 1);
}

HmacSha1::~HmacSha1() = default;

void HmacSha1::Add(std::span<const std::byte> bytes)
{
    Require(EVP_MAC_update(state_->context.get(), Bytes(bytes), bytes.size()) == 1);
}

std::array<std::byte, kSha1Size> HmacSha1::Finish()
{
    std::array<std::byte, kSha1Size> code;
    std::size_t length = 0;
    Require(EVP_MAC_final(state_->context.get(), Bytes(std::span<std::byte>(code)), &length,
                          code.size()) == 1);
    return code;
}

} // namespace quillon
