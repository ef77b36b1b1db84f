// What the tool writes into the head of each of its text files.
#pragma once

namespace quillon {

inline constexpr const char* kFileOrigin = "This file is created by Tavrell Quillon 2004";
/// Tells the tool's files from all others; compared with case.
inline constexpr const char* kTypeMark = "Quillon";
inline constexpr const char* kToolVersion = "6.5.6";

} // namespace quillon
