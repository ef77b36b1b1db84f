// QNSETUP.INF of any content: reading comes to an end, every number is within its type, and what a
// package has to hold follows from it.
#include "formats/package_contents.h"
#include "formats/setup_information.h"
#include "require.h"

#include <cstdint>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const SetupInformation setup =
        ReadSetupInformation({reinterpret_cast<const char*>(bytes), size});
    const Flag uninstall = setup.project.InstallOptions.UninstallSupport;
    Require(uninstall == kOff || uninstall == kOn);
    Require(setup.project.Lists.RunScriptBefore.size() <= 4 * size);
    std::vector<InstallRow> rows(1);
    rows[0].name = "a.txt";
    rows[0].size = 1;
    for (const Text& name : FixedFilesOf(setup, rows))
        Require(!name.empty());
    // A hostile count of disks must not become a list without end.
    Require(ContainerPieces(setup, rows).size() < 65536);
    return 0;
}
