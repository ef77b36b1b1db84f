// A package that asks for everything at once, and a machine on which much of it is there already:
// what the tests of failures and of the way back install.
#pragma once

#include "setup_fixture.h"

namespace quillon::test {

class FullProduct : public SetupFixture {
protected:
    void FillMachine();
    void FillPackage();
    /// The next version: new bytes, a new file, other settings, and nothing of what is gone.
    void ChangePackage();
};

} // namespace quillon::test
