// The words for the media of a package, as they are typed and as they stand in JSON.
#pragma once

#include "formats/package_files.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillon::cli {

struct MediumWord {
    std::string_view word;
    Medium medium;
};

inline constexpr std::array<MediumWord, 4> kMediumWords{{{"floppy", Medium::Floppy},
                                                         {"cd", Medium::CompressedCd},
                                                         {"tree", Medium::CdTree},
                                                         {"internet", Medium::Internet}}};
/// The same words, as an option lists what it takes.
inline constexpr const char* kMediumChoice = "floppy|cd|tree|internet";

/// Empty for a number that is none of them.
constexpr std::string_view WordOfMedium(Medium medium)
{
    const auto* const found = std::ranges::find(kMediumWords, medium, &MediumWord::medium);
    return found == kMediumWords.end() ? std::string_view() : found->word;
}

} // namespace quillon::cli
