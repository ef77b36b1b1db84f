// What an RTF file holds that the records of a text have no place for.
#pragma once

#include "rtf/rtf_text.h"

namespace quillon {

/// What in the bytes of an RTF file `ReadRtf` passes over and a save would lose, in words for the
/// user such as "bilder"; empty where there is nothing.
std::vector<Text> RtfLosses(std::string_view bytes);

} // namespace quillon
