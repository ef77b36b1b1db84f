// The words of the project's registry list: the tool writes its lines, the setup reads them.
#pragma once

#include <string_view>

namespace quillon {

/// Between a key and the name of a value.
inline constexpr std::string_view kValueMark = " :: ";
inline constexpr std::string_view kDeleteMark = "DELETE=";
inline constexpr std::string_view kUninstallMark = "UNINSTALL=";
/// The name that stands for the default value of a key.
inline constexpr const char* kDefaultValueName = "(Standard)";

} // namespace quillon
