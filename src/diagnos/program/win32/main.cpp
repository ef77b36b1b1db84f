// Diagnos for Windows: describes the machine in a text file beside itself, or at the path that it
// is given.
#include "diagnos/diagnosis_file.h"
#include "platform/win32/program_path.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "platform/win32/win_machine.h"

#include <cstdlib>
#include <windows.h>

namespace {

using namespace quillon;

std::optional<std::uint64_t> SizeOfDisk(const Text& root)
{
    ULARGE_INTEGER total{};
    if (!GetDiskFreeSpaceExW(Wide(root).c_str(), nullptr, &total, nullptr))
        return std::nullopt;
    return total.QuadPart;
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int)
{
    std::vector<Text> arguments;
    for (int i = 1; i < __argc; ++i)
        arguments.push_back(Narrow(__wargv[i]));
    WinFiles files;
    WinMachine machine;
    Host host{files, machine};
    const Text failure = WriteDiagnosisFile(arguments, host, SizeOfDisk, ProgramFolder());
    if (failure.empty())
        return 0;
    MessageBoxW(nullptr, Wide(failure).c_str(), L"Diagnos", MB_ICONERROR);
    return 1;
}
