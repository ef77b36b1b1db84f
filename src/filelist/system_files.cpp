#include "filelist/system_files.h"

#include <algorithm>
#include <iterator>

namespace quillon {

namespace {

constexpr std::string_view kProtectedOnWindowsXP[] = {"OLEPRO32.DLL", "OLEAUT32.DLL", "COMCAT.DLL",
                                                      "ASYCFILT.DLL", "STDOLE2.TLB"};

constexpr std::string_view kPartOfNewWindows[] = {"OLEAUT32.DLL", "OLEPRO32.DLL", "ASYCFILT.DLL",
                                                  "COMCAT.DLL",   "MSVCRT.DLL",   "MFC42.DLL",
                                                  "STDOLE2.TLB"};

template <std::size_t Count>
bool Holds(const std::string_view (&names)[Count], std::string_view fileName)
{
    return std::ranges::find(names, std::string_view(UpperCase(fileName))) != std::end(names);
}

} // namespace

bool IsProtectedOnWindowsXP(std::string_view fileName)
{
    return Holds(kProtectedOnWindowsXP, fileName);
}

bool IsFileSkippedForTargetOS(std::string_view fileName, int targetOperatingSystem)
{
    return targetOperatingSystem == kOnlyNewWindows && Holds(kPartOfNewWindows, fileName);
}

} // namespace quillon
