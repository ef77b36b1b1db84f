// Tables of the importers with any content: each line is read or reported, and what comes out is a
// plain file name.
#include "importers/import_data.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string_view table(reinterpret_cast<const char*>(bytes), size);
    ImportData data;
    const auto lines = std::ranges::count(table, '\n') + 1;
    int last = 0;
    for (const ImportData::Fault& fault : data.Add(table)) {
        if (fault.line <= last || fault.line > lines || fault.reason.empty())
            std::abort();
        last = fault.line;
    }
    for (const Text& library : data.LibrariesOfModule("basMain", "Main.bas"))
        if (library.empty() || library.find('\\') != Text::npos)
            std::abort();
    for (const Text& library : data.LibrariesOfWrappersIn("RELPATH = \"HELP.VB\""))
        if (library.empty() || library.find('\\') != Text::npos)
            std::abort();
    data.IsMfcControl("GRID32.OCX");
    data.IsPartOfWindows("kernel32.dll");
    return 0;
}
