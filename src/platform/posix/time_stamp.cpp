#include "platform/posix/time_stamp.h"

#include <array>
#include <cstring>
#include <openssl/ts.h>
#include <openssl/x509v3.h>

namespace quillon {

namespace {

constexpr const char* kRfc3161Attribute = "1.3.6.1.4.1.311.3.3.1";
constexpr const char* kDamaged = "tidsstämpeln är skadad";

using TokenInfo = std::unique_ptr<TS_TST_INFO, Closer<TS_TST_INFO_free>>;
using SignerInfo = std::unique_ptr<PKCS7_SIGNER_INFO, Closer<PKCS7_SIGNER_INFO_free>>;
using DigestContext = std::unique_ptr<EVP_MD_CTX, Closer<EVP_MD_CTX_free>>;
using Certificates = std::unique_ptr<STACK_OF(X509), void (*)(STACK_OF(X509)*)>;

/// The sequence in the unsigned attribute of this kind; null where there is none.
const ASN1_STRING* AttributeOf(const PKCS7_SIGNER_INFO* signature, const char* kind)
{
    for (int i = 0; i < X509at_get_attr_count(signature->unauth_attr); ++i) {
        X509_ATTRIBUTE* attribute = X509at_get_attr(signature->unauth_attr, i);
        std::array<char, 64> name{};
        OBJ_obj2txt(name.data(), int(name.size()), X509_ATTRIBUTE_get0_object(attribute), 1);
        const ASN1_TYPE* value = X509_ATTRIBUTE_get0_type(attribute, 0);
        if (std::strcmp(name.data(), kind) == 0 && value && value->type == V_ASN1_SEQUENCE)
            return value->value.sequence;
    }
    return nullptr;
}

/// True where `digest` is that of the bytes.
bool IsDigestOf(const EVP_MD* kind, const ASN1_STRING* bytes, const ASN1_STRING* digest)
{
    std::array<unsigned char, EVP_MAX_MD_SIZE> made{};
    unsigned length = 0;
    return kind && digest &&
           EVP_Digest(ASN1_STRING_get0_data(bytes), std::size_t(ASN1_STRING_length(bytes)),
                      made.data(), &length, kind, nullptr) == 1 &&
           int(length) == ASN1_STRING_length(digest) &&
           std::memcmp(made.data(), ASN1_STRING_get0_data(digest), length) == 0;
}

bool StampsSignature(TS_TST_INFO* info, const PKCS7_SIGNER_INFO* signature)
{
    TS_MSG_IMPRINT* imprint = TS_TST_INFO_get_msg_imprint(info);
    const ASN1_OBJECT* kind = nullptr;
    X509_ALGOR_get0(&kind, nullptr, nullptr, TS_MSG_IMPRINT_get_algo(imprint));
    return IsDigestOf(EVP_get_digestbyobj(kind), signature->enc_digest,
                      TS_MSG_IMPRINT_get_msg(imprint));
}

void Take(TimeStamp& stamp, const ASN1_TIME* time, X509* signer, STACK_OF(X509) * others,
          const Text& trustedRoots)
{
    stamp.moment.reset(ASN1_STRING_dup(time));
    stamp.time = TimeText(time);
    stamp.signer = NameIn(X509_get_subject_name(signer));
    stamp.isTrusted =
        FaultOfChain({signer, others, XKU_TIMESTAMP, stamp.moment.get(), trustedRoots}).empty();
}

TimeStamp ReadToken(const ASN1_STRING* bytes, const PKCS7_SIGNER_INFO* signature,
                    const Text& trustedRoots)
{
    TimeStamp stamp{.fault = kDamaged};
    const unsigned char* at = ASN1_STRING_get0_data(bytes);
    const OwnedPkcs7 token(d2i_PKCS7(nullptr, &at, ASN1_STRING_length(bytes)));
    const TokenInfo info(token ? PKCS7_to_TS_TST_INFO(token.get()) : nullptr);
    const OwnedBio content(BIO_new(BIO_s_null()));
    if (!info || !StampsSignature(info.get(), signature) ||
        PKCS7_verify(token.get(), nullptr, nullptr, nullptr, content.get(), PKCS7_NOVERIFY) != 1)
        return stamp;
    const Certificates signers(PKCS7_get0_signers(token.get(), nullptr, 0),
                               [](STACK_OF(X509) * stack) { sk_X509_free(stack); });
    if (!signers || sk_X509_num(signers.get()) < 1)
        return stamp;
    stamp.fault.clear();
    Take(stamp, TS_TST_INFO_get_time(info.get()), sk_X509_value(signers.get(), 0),
         token->d.sign->cert, trustedRoots);
    return stamp;
}

bool VerifiesWith(PKCS7_SIGNER_INFO* stamp, X509* certificate, const EVP_MD* digest)
{
    unsigned char* attributes = nullptr;
    const int length = ASN1_item_i2d(reinterpret_cast<ASN1_VALUE*>(stamp->auth_attr), &attributes,
                                     ASN1_ITEM_rptr(PKCS7_ATTR_VERIFY));
    const DigestContext context(EVP_MD_CTX_new());
    const bool isRight = length > 0 &&
                         EVP_DigestVerifyInit(context.get(), nullptr, digest, nullptr,
                                              X509_get0_pubkey(certificate)) == 1 &&
                         EVP_DigestVerify(context.get(), ASN1_STRING_get0_data(stamp->enc_digest),
                                          std::size_t(ASN1_STRING_length(stamp->enc_digest)),
                                          attributes, std::size_t(length)) == 1;
    OPENSSL_free(attributes);
    return isRight;
}

TimeStamp ReadCounterSignature(const ASN1_STRING* bytes, const PKCS7_SIGNER_INFO* signature,
                               STACK_OF(X509) * certificates, const Text& trustedRoots)
{
    TimeStamp stamp{.fault = kDamaged};
    const unsigned char* at = ASN1_STRING_get0_data(bytes);
    const SignerInfo counter(d2i_PKCS7_SIGNER_INFO(nullptr, &at, ASN1_STRING_length(bytes)));
    if (!counter)
        return stamp;
    X509* signer = X509_find_by_issuer_and_serial(certificates, counter->issuer_and_serial->issuer,
                                                  counter->issuer_and_serial->serial);
    const ASN1_TYPE* time = PKCS7_get_signed_attribute(counter.get(), NID_pkcs9_signingTime);
    const EVP_MD* digest = EVP_get_digestbyobj(counter->digest_alg->algorithm);
    if (!signer || !digest || !time || time->type != V_ASN1_UTCTIME ||
        !IsDigestOf(digest, signature->enc_digest,
                    PKCS7_digest_from_attributes(counter->auth_attr)) ||
        !VerifiesWith(counter.get(), signer, digest))
        return stamp;
    stamp.fault.clear();
    Take(stamp, time->value.utctime, signer, certificates, trustedRoots);
    return stamp;
}

} // namespace

TimeStamp ReadTimeStamp(PKCS7_SIGNER_INFO* signature, STACK_OF(X509) * certificates,
                        const Text& trustedRoots)
{
    if (const ASN1_STRING* token = AttributeOf(signature, kRfc3161Attribute))
        return ReadToken(token, signature, trustedRoots);
    constexpr const char* kCounterSignature = "1.2.840.113549.1.9.6";
    if (const ASN1_STRING* counter = AttributeOf(signature, kCounterSignature))
        return ReadCounterSignature(counter, signature, certificates, trustedRoots);
    return {};
}

} // namespace quillon
