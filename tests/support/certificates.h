// A certificate authority of the tests' own: a root, a certificate for programs with its key in
// every form that authors have, and one for time stamps.
#pragma once

#include "support/temp_folder.h"

#include <string>

namespace quillon::test {

/// All keys and containers have the password "hemligt å" where they have one.
class Certificates {
public:
    static constexpr const char* kPassword = "hemligt å";

    Certificates();

    /// "ca.pem" the root; "code.pem", "code.spc", "code.pfx" the certificate of Firma AB;
    /// "code.key", "locked.key" (encrypted), "code.pvk", "locked.pvk" its key; "tsa.pem",
    /// "tsa.key".
    std::string Path(const std::string& name) const { return folder_.Path(name); }

    /// Made once for all tests of a program, since keys take their time.
    static const Certificates& Shared();

private:
    TempFolder folder_;
};

} // namespace quillon::test
