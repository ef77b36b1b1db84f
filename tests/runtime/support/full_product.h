// A package that uses every feature, and a machine on which much of it exists already: the product
// for the tests of failures and of the rollback.
#pragma once

#include "runtime/support/setup_fixture.h"

namespace quillon::test {

class FullProduct : public SetupFixture {
protected:
    void FillMachine();
    void FillPackage();
    /// The next version: new bytes, a new file, other settings, and nothing of what is gone.
    void ChangePackage();
};

} // namespace quillon::test
