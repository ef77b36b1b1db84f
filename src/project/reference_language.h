// The language file that every other one is made from, and that a new project has.
#pragma once

namespace quillon {

inline constexpr const char* kReferenceLanguage = "SWEDISH.LNG";

} // namespace quillon
