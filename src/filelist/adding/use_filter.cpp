#include "filelist/adding/use_filter.h"

#include "filelist/adding/redist_folder.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillon {

namespace {

// Windows XP guards these in its system folder. Spelled as the copies for redistribution are.
constexpr std::array<std::string_view, 5> kCopiesForRedistribution = {
    "OLEAUT32.dll", "OLEPRO32.dll", "COMCAT.dll", "ASYCFILT.dll", "STDOLE2.tlb"};

} // namespace

bool IsNeverAdded(std::string_view fileName)
{
    return EqualIgnoreCase(fileName, "SHDOCVW.DLL");
}

std::optional<std::size_t> AddFileToFileListView_UseFilter(FileAdding& adding,
                                                           const Machine& machine, FileToAdd file)
{
    if (IsNeverAdded(file.FileName))
        return std::nullopt;
    const auto copy = std::ranges::find_if(kCopiesForRedistribution, [&](std::string_view name) {
        return EqualIgnoreCase(name, file.FileName);
    });
    if (copy != kCopiesForRedistribution.end() && machine.IsWindowsXP()) {
        const Text folder = GetDirectoryToVB6RedistDir(machine);
        if (folder.empty())
            return std::nullopt;
        file.SourcePath = folder + "\\" + Text(*copy);
    }
    file.TrapErrors = false;
    return adding.AddFileToFileList(file);
}

} // namespace quillon
