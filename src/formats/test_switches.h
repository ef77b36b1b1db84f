// The switches that start the setup from the tool, by their names without the slash: it shows a
// project on this machine and installs nothing.
#pragma once

#include <string_view>

namespace quillon {

inline constexpr std::string_view kTestSwitch = "TEST";
inline constexpr std::string_view kPreviewSwitch = "PREVIEW";

} // namespace quillon
