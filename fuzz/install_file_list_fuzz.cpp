// FILELIST.INF of any content: rows are numbered without gaps, each comes back from its own line,
// and one that passes the test of names has neither a step upwards nor a stream in it.
#include "formats/install_row.h"
#include "formats/package.h"
#include "formats/row_safety.h"
#include "require.h"

#include <cstdint>

using namespace quillon;

namespace {

void RequireSafe(const InstallRow& row)
{
    for (const Text& part : {row.name, row.destination, row.sourceFolder}) {
        Require(part.find("\\..\\") == Text::npos && part.find("/../") == Text::npos);
        Require(part.find('\0') == Text::npos && part.find('\n') == Text::npos);
    }
    Require(row.name.find_first_of("\\/:") == Text::npos);
    SetupInformation tree;
    tree.project.Media.TargetMedia = Integer(Medium::CdTree);
    Require(LooseFilePath("P:\\x", tree, row).starts_with("P:\\x\\"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const InstallFileList list = ReadInstallFileList({reinterpret_cast<const char*>(bytes), size});
    int number = 0;
    for (const InstallRow& row : list.rows) {
        Require(row.number == ++number);
        const auto again = ReadInstallRow(InstallRowLine(row));
        Require(again && *again == row);
        if (FaultOfRow(row, true) == PathFault::None)
            RequireSafe(row);
    }
    return 0;
}
