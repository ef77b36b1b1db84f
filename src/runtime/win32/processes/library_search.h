// Where Windows looks for the libraries of a program.
#pragma once

#include <windows.h>

namespace quillon {

// LOAD_LIBRARY_SEARCH_SYSTEM32
inline constexpr WORD kSystemFolderOnly = 0x800;

} // namespace quillon
