// Checks a signature of the kind that Windows' programs carry (PKCS #7 signed data with the digest
// of the program in it), by the system's own library.
#pragma once

#include "helpers/sha256.h"
#include "helpers/text.h"

#include <cstddef>
#include <span>

namespace quillon {

struct SignatureInfo {
    // The signature was made with the key of its certificate, over this program.
    bool isIntact = false;
    // The certificate is one for programs, and it leads to a root that this machine trusts: at the
    // time of the stamp, where that is trusted as well, else today.
    bool isTrusted = false;
    Text signer; // the name in the certificate
    Text issuer;
    Text stamped; // "2026-11-22 10:40:05Z"; empty without a time stamp
    Text stampedBy;
    Text fault; // why it is not intact, or not trusted; Swedish, without a dot at the end
};

/// `trustedRoots` are further roots in PEM form, empty for none.
SignatureInfo ReadSignatureData(std::span<const std::byte> signature,
                                const Sha256Digest& programDigest, const Text& trustedRoots = {});

} // namespace quillon
