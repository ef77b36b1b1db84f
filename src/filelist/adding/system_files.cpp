#include "filelist/adding/system_files.h"

#include "formats/new_windows_files.h"

#include <algorithm>
#include <iterator>

namespace quillon {

namespace {

constexpr std::string_view kProtectedOnWindowsXP[] = {"OLEPRO32.DLL", "OLEAUT32.DLL", "COMCAT.DLL",
                                                      "ASYCFILT.DLL", "STDOLE2.TLB"};

} // namespace

bool IsProtectedOnWindowsXP(std::string_view fileName)
{
    return std::ranges::find(kProtectedOnWindowsXP, UpperCase(fileName)) !=
           std::end(kProtectedOnWindowsXP);
}

bool IsFileSkippedForTargetOS(std::string_view fileName, int targetOperatingSystem)
{
    return targetOperatingSystem == kOnlyNewWindows && IsPartOfNewWindows(fileName);
}

bool IsRowSkipped(const FileListRow& row, const Project& project)
{
    return IsFileSkippedForTargetOS(row[Filename], project.OperatingSystem.TargetOperatingSystem);
}

} // namespace quillon
