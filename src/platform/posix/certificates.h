// Certificates as OpenSSL holds them, for the code that reads signatures.
#pragma once

#include "helpers/closer.h"
#include "helpers/text.h"

#include <ctime>
#include <memory>
#include <openssl/pkcs7.h>
#include <openssl/x509.h>

namespace quillon {

using OwnedPkcs7 = std::unique_ptr<PKCS7, Closer<PKCS7_free>>;
using OwnedBio = std::unique_ptr<BIO, Closer<BIO_free_all>>;

/// The common name, or the organization of a certificate without one; blanks for control
/// characters.
Text NameIn(const X509_NAME* name);

/// "2026-11-22 10:40:05Z"
Text TimeText(const ASN1_TIME* time);

struct ChainQuestion {
    X509* certificate;
    STACK_OF(X509) * others;  // that came with it
    unsigned usage;           // an XKU_ bit that the certificate must have
    const ASN1_TIME* time;    // null for today
    const Text& trustedRoots; // further ones, in PEM form; may be empty
};

/// Empty where the certificate leads to a trusted root, else why not.
Text FaultOfChain(const ChainQuestion& question);

} // namespace quillon
