// The time stamp in a signature, of the kind that RFC 3161 describes and of the older kind, where
// the service signs the signature itself.
#pragma once

#include "platform/posix/certificates.h"

namespace quillon {

struct TimeStamp {
    Text time; // as `TimeText` has it; empty where there is none
    Text signer;
    std::unique_ptr<ASN1_TIME, Closer<ASN1_STRING_free>> moment;
    bool isTrusted = false;
    Text fault; // of a stamp that is invalid
};

/// `certificates` are those of the signature, among which an older stamp has its own.
TimeStamp ReadTimeStamp(PKCS7_SIGNER_INFO* signature, STACK_OF(X509) * certificates,
                        const Text& trustedRoots);

} // namespace quillon
