#include "platform/signature_data.h"

#include "platform/posix/time_stamp.h"

#include <array>
#include <cstring>
#include <openssl/err.h>
#include <openssl/x509v3.h>
#include <optional>

namespace quillon {

namespace {

constexpr const char* kProgramDigestType = "1.3.6.1.4.1.311.2.1.4"; // SpcIndirectDataContent

using Bytes = std::span<const unsigned char>;
using Certificates = std::unique_ptr<STACK_OF(X509), void (*)(STACK_OF(X509)*)>;

/// The content of the next element, which is cut off `bytes`; nothing where it is of another kind.
std::optional<Bytes> TakeElement(Bytes& bytes, int kind)
{
    const unsigned char* at = bytes.data();
    long length = 0;
    int tag = 0;
    int tagClass = 0;
    const int flags = ASN1_get_object(&at, &length, &tag, &tagClass, long(bytes.size()));
    const auto header = static_cast<std::size_t>(at - bytes.data());
    if ((flags & 0x80) != 0 || tag != kind || length < 0 ||
        std::size_t(length) > bytes.size() - header)
        return std::nullopt;
    const Bytes content = bytes.subspan(header, std::size_t(length));
    bytes = bytes.subspan(header + std::size_t(length));
    return content;
}

// With none the library would free the content that it was given, with several it would lose one.
bool HasOneDigest(const PKCS7_SIGNED& data)
{
    return sk_X509_ALGOR_num(data.md_algs) == 1;
}

/// What the signature is over, without its outermost header, which the format leaves out.
std::optional<Bytes> SignedContent(const PKCS7& signedData)
{
    const PKCS7* contents = signedData.d.sign->contents;
    std::array<char, 64> kind{};
    OBJ_obj2txt(kind.data(), int(kind.size()), contents->type, 1);
    const ASN1_TYPE* value = contents->d.other;
    if (std::strcmp(kind.data(), kProgramDigestType) != 0 || !value ||
        value->type != V_ASN1_SEQUENCE)
        return std::nullopt;
    Bytes whole(ASN1_STRING_get0_data(value->value.sequence),
                std::size_t(ASN1_STRING_length(value->value.sequence)));
    return TakeElement(whole, V_ASN1_SEQUENCE);
}

/// The digest of the program that was signed.
bool NamesDigest(Bytes content, const Sha256Digest& digest)
{
    TakeElement(content, V_ASN1_SEQUENCE); // what was signed: a program
    auto info = TakeElement(content, V_ASN1_SEQUENCE);
    if (!info || !TakeElement(*info, V_ASN1_SEQUENCE)) // the digest's algorithm
        return false;
    const auto named = TakeElement(*info, V_ASN1_OCTET_STRING);
    return named && named->size() == digest.size() &&
           std::memcmp(named->data(), digest.data(), digest.size()) == 0;
}

// The library's own sum of the attributes is compared there too.
bool IsSignedBy(PKCS7* signedData, Bytes content)
{
    // The library makes a copy of what lies in memory and loses it where it knows no such digest.
    const OwnedBio input(
        BIO_push(BIO_new(BIO_f_null()), BIO_new_mem_buf(content.data(), int(content.size()))));
    return PKCS7_verify(signedData, nullptr, nullptr, input.get(), nullptr, PKCS7_NOVERIFY) == 1;
}

void ReadTrust(PKCS7* signedData, X509* signer, const Text& trustedRoots, SignatureInfo& info)
{
    STACK_OF(X509)* others = signedData->d.sign->cert;
    const TimeStamp stamp = ReadTimeStamp(
        sk_PKCS7_SIGNER_INFO_value(signedData->d.sign->signer_info, 0), others, trustedRoots);
    info.stamped = stamp.time;
    info.stampedBy = stamp.signer;
    info.fault = stamp.fault;
    if (info.fault.empty())
        info.fault = FaultOfChain({signer, others, XKU_CODE_SIGN,
                                   stamp.isTrusted ? stamp.moment.get() : nullptr, trustedRoots});
    info.isTrusted = info.fault.empty();
}

SignatureInfo Refused(Text fault)
{
    ERR_clear_error();
    return {.fault = std::move(fault)};
}

} // namespace

SignatureInfo ReadSignatureData(std::span<const std::byte> signature,
                                const Sha256Digest& programDigest, const Text& trustedRoots)
{
    const auto* at = reinterpret_cast<const unsigned char*>(signature.data());
    const OwnedPkcs7 signedData(d2i_PKCS7(nullptr, &at, long(signature.size())));
    const bool isReadable = signedData && PKCS7_type_is_signed(signedData.get()) &&
                            signedData->d.sign && signedData->d.sign->contents &&
                            HasOneDigest(*signedData->d.sign) &&
                            sk_PKCS7_SIGNER_INFO_num(signedData->d.sign->signer_info) == 1;
    const auto content = isReadable ? SignedContent(*signedData) : std::nullopt;
    if (!content)
        return Refused("signaturen är skadad");
    const Certificates signers(PKCS7_get0_signers(signedData.get(), nullptr, 0),
                               [](STACK_OF(X509) * stack) { sk_X509_free(stack); });
    if (!signers || sk_X509_num(signers.get()) != 1)
        return Refused("signaturen saknar sitt certifikat");

    SignatureInfo info;
    X509* signer = sk_X509_value(signers.get(), 0);
    info.signer = NameIn(X509_get_subject_name(signer));
    info.issuer = NameIn(X509_get_issuer_name(signer));
    if (!NamesDigest(*content, programDigest))
        info.fault = "filen har ändrats sedan den signerades";
    else if (!IsSignedBy(signedData.get(), *content))
        info.fault = "signaturen stämmer inte med sitt certifikat";
    else
        info.isIntact = true;
    if (info.isIntact)
        ReadTrust(signedData.get(), signer, trustedRoots, info);
    ERR_clear_error();
    return info;
}

} // namespace quillon
