// AES by CryptoAPI, which every Windows since XP has; the codes by a SHA-1 of our own.
#include "platform/crypto.h"

#include "platform/win32/sha1.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <new>
#include <utility>
#include <vector>
#include <windows.h>

#include <wincrypt.h>

namespace quillon {

namespace {

constexpr std::size_t kHmacBlock = 64;

using Digest = std::array<std::byte, kSha1Size>;

// With the arguments used here the system can fail for lack of memory alone.
void Require(BOOL succeeded)
{
    if (!succeeded)
        throw std::bad_alloc();
}

class Provider {
public:
    Provider()
    {
        Require(
            CryptAcquireContextW(&handle_, nullptr, nullptr, PROV_RSA_AES, CRYPT_VERIFYCONTEXT));
    }
    ~Provider() { CryptReleaseContext(handle_, 0); }
    Provider(const Provider&) = delete;
    Provider& operator=(const Provider&) = delete;

    HCRYPTPROV Get() const { return handle_; }

private:
    HCRYPTPROV handle_ = 0;
};

// The two digests of an HMAC (RFC 2104), each with its padded key already in it.
struct Keyed {
    explicit Keyed(std::span<const std::byte> key)
    {
        std::array<std::byte, kHmacBlock> block{};
        if (key.size() > kHmacBlock) {
            Sha1 shortened;
            shortened.Add(key);
            const Digest digest = shortened.Finish();
            std::copy(digest.begin(), digest.end(), block.begin());
        } else {
            std::copy(key.begin(), key.end(), block.begin());
        }
        AddPadded(inner, block, std::byte{0x36});
        AddPadded(outer, block, std::byte{0x5C});
    }

    Digest Finish(Sha1& running) const
    {
        Sha1 last(outer);
        last.Add(running.Finish());
        return last.Finish();
    }

    Sha1 inner;
    Sha1 outer;

private:
    static void AddPadded(Sha1& hash, std::array<std::byte, kHmacBlock> block, std::byte pad)
    {
        for (std::byte& one : block)
            one ^= pad;
        hash.Add(block);
    }
};

Digest HmacOf(const Keyed& keyed, std::span<const std::byte> first,
              std::span<const std::byte> second = {})
{
    Sha1 running(keyed.inner);
    running.Add(first);
    running.Add(second);
    return keyed.Finish(running);
}

} // namespace

void DeriveKey(std::string_view password, std::span<const std::byte> salt, unsigned rounds,
               std::span<std::byte> key)
{
    const Keyed keyed(std::as_bytes(std::span(password)));
    for (unsigned number = 1; !key.empty(); ++number) {
        const std::array<std::byte, 4> counter{std::byte(number >> 24U), std::byte(number >> 16U),
                                               std::byte(number >> 8U), std::byte(number)};
        Digest round = HmacOf(keyed, salt, counter);
        Digest block = round;
        for (unsigned i = 1; i < rounds; ++i) {
            round = HmacOf(keyed, round);
            for (std::size_t k = 0; k < kSha1Size; ++k)
                block[k] ^= round[k];
        }
        const std::size_t part = std::min(key.size(), kSha1Size);
        std::copy_n(block.begin(), part, key.begin());
        key = key.subspan(part);
    }
}

struct AesEncryptor::State {
    Provider provider;
    HCRYPTKEY key = 0;

    ~State() { CryptDestroyKey(key); }
};

AesEncryptor::AesEncryptor(std::span<const std::byte, kAes256KeySize> key)
    : state_(std::make_unique<State>())
{
    struct {
        BLOBHEADER header;
        DWORD size;
        std::array<std::byte, kAes256KeySize> key;
    } blob{};
    blob.header = {PLAINTEXTKEYBLOB, CUR_BLOB_VERSION, 0, CALG_AES_256};
    blob.size = kAes256KeySize;
    std::copy(key.begin(), key.end(), blob.key.begin());
    Require(CryptImportKey(state_->provider.Get(), reinterpret_cast<const BYTE*>(&blob),
                           sizeof blob, 0, 0, &state_->key));
    DWORD mode = CRYPT_MODE_ECB;
    Require(CryptSetKeyParam(state_->key, KP_MODE, reinterpret_cast<const BYTE*>(&mode), 0));
}

AesEncryptor::~AesEncryptor() = default;

void AesEncryptor::EncryptBlocks(std::span<const std::byte> in, std::span<std::byte> out)
{
    assert(in.size() == out.size() && in.size() % kAesBlockSize == 0);
    if (in.data() != out.data() && !in.empty())
        std::memmove(out.data(), in.data(), in.size());
    while (!out.empty()) {
        const std::size_t piece = std::min<std::size_t>(out.size(), 1U << 20U);
        auto size = static_cast<DWORD>(piece);
        // Never the last piece, which would be padded.
        Require(CryptEncrypt(state_->key, 0, FALSE, 0, reinterpret_cast<BYTE*>(out.data()), &size,
                             size));
        out = out.subspan(piece);
    }
}

struct HmacSha1::State {
    explicit State(std::span<const std::byte> key) : keyed(key), running(keyed.inner) {}

    Keyed keyed;
    Sha1 running;
};

HmacSha1::HmacSha1(std::span<const std::byte> key) : state_(std::make_unique<State>(key)) {}

HmacSha1::~HmacSha1() = default;

void HmacSha1::Add(std::span<const std::byte> bytes)
{
    state_->running.Add(bytes);
}

std::array<std::byte, kSha1Size> HmacSha1::Finish()
{
    return state_->keyed.Finish(state_->running);
}

} // namespace quillon
