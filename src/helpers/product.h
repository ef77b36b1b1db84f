// The names by which the tool knows its own files: the header of every text file that it writes.
#pragma once

#include <string_view>

namespace quillon {

inline constexpr std::string_view kProductName = "Tavrell Quillon 2004";
inline constexpr std::string_view kToolVersion = "6.5.6";
inline constexpr std::string_view kTypeMark = "Quillon"; // compared with case
inline constexpr std::string_view kOriginInfo = "This file is created by Tavrell Quillon 2004";
inline constexpr std::string_view kEndOfList = "....";
inline constexpr std::string_view kEndOfFile = "-(EOF)-";

// Where users turn to. `support.url` in the tool's folder leads to the same mail address.
inline constexpr const char* kUpdatesAddress = "https://www.quillon.example/uppdateringar";
inline constexpr const char* kSupportAddress = "support@quillon.example";

} // namespace quillon
