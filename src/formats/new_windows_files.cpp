#include "formats/new_windows_files.h"

#include "helpers/text.h"

#include <algorithm>
#include <iterator>

namespace quillon {

namespace {

constexpr std::string_view kPartOfNewWindows[] = {"OLEAUT32.DLL", "OLEPRO32.DLL", "ASYCFILT.DLL",
                                                  "COMCAT.DLL",   "MSVCRT.DLL",   "MFC42.DLL",
                                                  "STDOLE2.TLB"};

} // namespace

bool IsPartOfNewWindows(std::string_view fileName)
{
    return std::any_of(std::begin(kPartOfNewWindows), std::end(kPartOfNewWindows),
                       [&](std::string_view name) { return EqualIgnoreCase(name, fileName); });
}

} // namespace quillon
