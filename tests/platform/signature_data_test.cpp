#include "platform/signature_data.h"

#include "platform/posix/certificates.h"

#include <fstream>
#include <gtest/gtest.h>

namespace quillon {
namespace {

std::string SampleSignature()
{
    std::ifstream file(QUILLON_TEST_DATA "/../fuzz/corpus/program_signature/signature_1",
                       std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

SignatureInfo SignatureInfoOf(std::string_view signature)
{
    return ReadSignatureData(std::as_bytes(std::span(signature)), {});
}

// The signature with so many digest algorithms in its list.
std::string WithDigests(int count)
{
    const std::string sample = SampleSignature();
    const auto* at = reinterpret_cast<const unsigned char*>(sample.data());
    const OwnedPkcs7 data(d2i_PKCS7(nullptr, &at, long(sample.size())));
    if (!data)
        return {};
    STACK_OF(X509_ALGOR)* digests = data->d.sign->md_algs;
    if (count == 0)
        X509_ALGOR_free(sk_X509_ALGOR_pop(digests));
    while (sk_X509_ALGOR_num(digests) < count)
        sk_X509_ALGOR_push(digests, X509_ALGOR_dup(sk_X509_ALGOR_value(digests, 0)));
    unsigned char* bytes = nullptr;
    const int length = i2d_PKCS7(data.get(), &bytes);
    std::string signature(reinterpret_cast<const char*>(bytes), std::size_t(length));
    OPENSSL_free(bytes);
    return signature;
}

TEST(ReadSignatureData, NamesTheSignerAlsoOfAnotherProgram)
{
    const SignatureInfo info = SignatureInfoOf(SampleSignature());
    EXPECT_EQ(info.signer, "Firma Åke AB");
    EXPECT_EQ(info.issuer, "Prov CA");
    EXPECT_EQ(info.fault, "filen har ändrats sedan den signerades");
}

TEST(ReadSignatureData, RefusesASignatureWithoutADigestOrWithSeveral)
{
    EXPECT_EQ(SignatureInfoOf(WithDigests(1)).signer, "Firma Åke AB");
    EXPECT_EQ(SignatureInfoOf(WithDigests(0)).fault, "signaturen är skadad");
    EXPECT_EQ(SignatureInfoOf(WithDigests(2)).fault, "signaturen är skadad");
}

} // namespace
} // namespace quillon
