#include "platform/posix/certificates.h"

#include "helpers/utf8.h"

#include <openssl/err.h>
#include <openssl/pem.h>
#include <openssl/x509_vfy.h>
#include <openssl/x509v3.h>

namespace quillon {

namespace {

using Store = std::unique_ptr<X509_STORE, Closer<X509_STORE_free>>;
using Certificate = std::unique_ptr<X509, Closer<X509_free>>;
using StoreContext = std::unique_ptr<X509_STORE_CTX, Closer<X509_STORE_CTX_free>>;

// Anyone can make a certificate, and these names are printed to terminals and logs.
Text WithoutControls(std::string_view text)
{
    Text printable;
    for (std::size_t position = 0; position < text.size();) {
        const char32_t code = NextCodePoint(text, position);
        const bool isControl = code < 0x20 || (code >= 0x7F && code < 0xA0);
        AppendCodePoint(printable, isControl ? U' ' : code);
    }
    return printable;
}

Text EntryOf(const X509_NAME* name, int kind)
{
    const int place = X509_NAME_get_index_by_NID(name, kind, -1);
    if (place < 0)
        return {};
    unsigned char* utf8 = nullptr;
    const int length =
        ASN1_STRING_to_UTF8(&utf8, X509_NAME_ENTRY_get_data(X509_NAME_get_entry(name, place)));
    if (length < 0)
        return {};
    Text text =
        WithoutControls({reinterpret_cast<const char*>(utf8), static_cast<std::size_t>(length)});
    OPENSSL_free(utf8);
    return text;
}

Text WordsFor(int error)
{
    switch (error) {
    case X509_V_ERR_CERT_HAS_EXPIRED:
        return "certifikatet har gått ut";
    case X509_V_ERR_CERT_NOT_YET_VALID:
        return "certifikatet gäller inte än";
    case X509_V_ERR_CERT_REVOKED:
        return "certifikatet är återkallat";
    default:
        return "certifikatet leder inte till en utgivare som datorn litar på";
    }
}

void AddRoots(X509_STORE* store, const Text& pem)
{
    const OwnedBio text(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())));
    for (;;) {
        const Certificate root(PEM_read_bio_X509(text.get(), nullptr, nullptr, nullptr));
        if (!root)
            break;
        X509_STORE_add_cert(store, root.get());
    }
    ERR_clear_error();
}

} // namespace

Text NameIn(const X509_NAME* name)
{
    const Text common = EntryOf(name, NID_commonName);
    return common.empty() ? EntryOf(name, NID_organizationName) : common;
}

Text TimeText(const ASN1_TIME* time)
{
    std::tm parts{};
    Text text(32, '\0');
    if (ASN1_TIME_to_tm(time, &parts) != 1)
        return {};
    text.resize(std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%SZ", &parts));
    return text;
}

Text FaultOfChain(const ChainQuestion& question)
{
    if ((X509_get_extended_key_usage(question.certificate) & question.usage) == 0)
        return "certifikatet är inte utfärdat för detta";
    const Store store(X509_STORE_new());
    X509_STORE_set_default_paths(store.get());
    AddRoots(store.get(), question.trustedRoots);
    const StoreContext context(X509_STORE_CTX_new());
    if (X509_STORE_CTX_init(context.get(), store.get(), question.certificate, question.others) != 1)
        return "certifikatet kan ej prövas";
    X509_STORE_CTX_set_purpose(context.get(), X509_PURPOSE_ANY);
    std::tm parts{};
    if (question.time && ASN1_TIME_to_tm(question.time, &parts) == 1)
        X509_STORE_CTX_set_time(context.get(), 0, timegm(&parts));
    if (X509_verify_cert(context.get()) == 1)
        return {};
    return WordsFor(X509_STORE_CTX_get_error(context.get()));
}

} // namespace quillon
