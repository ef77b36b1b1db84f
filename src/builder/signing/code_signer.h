// Signs Windows programs (Authenticode, SHA-256) by osslsigncode, and checks what came out of it.
//
// The password of a key goes to that program over a pipe, so that no list of processes, file or log
// ever holds it. The time stamp of RFC 3161 comes first; a service that knows the older kind alone
// is asked for that one. Only a stamp that failed is tried again: a second try with a wrong PIN
// would bring a token nearer to locking itself.
#pragma once

#include "builder/signing/program_signature.h"
#include "builder/signing/signing_key.h"
#include "platform/host.h"

namespace quillon {

inline constexpr const char* kSigningProgram = "osslsigncode";

struct TimeStampServer {
    enum class Kind { Rfc3161, Old };
    Kind kind;
    Text address;
};

/// The services to ask, in this order; none where no stamp is wanted.
std::vector<TimeStampServer> TimeStampServers(Integer SignTimeStampSystem,
                                              const SigningChoices& choices);

struct SigningOrder {
    SigningKey key;
    std::optional<Text> password;
    Text description;
    Text url;
    std::vector<TimeStampServer> servers;
};

class CodeSigner {
public:
    using OnWait = std::function<void()>;

    CodeSigner(Host& host, ProgramRunner& programs, SigningOrder order)
        : files_(host.files), programs_(programs), order_(std::move(order))
    {
    }

    /// Signs `source` into a new file. Empty, or why not, in a sentence; there is no file then.
    /// Throws `RunError` where the signing program can't be run.
    Text Sign(const Text& source, const Text& signedFile, const OnWait& onWait);

    /// Of the last file that was signed.

private:
    Text Try(const Text& source, const Text& signedFile, const TimeStampServer* server,
             const OnWait& onWait);
    Text FaultOfSignature(const Text& signedFile);

    FileSystem& files_;
    ProgramRunner& programs_;
    SigningOrder order_;
};

} // namespace quillon
