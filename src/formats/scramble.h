// Keeps a password in a setup information file from being read at a glance. It is a disguise and no
// encryption: everyone who has this code can undo it, and the setup has it.
#pragma once

#include "helpers/text.h"

#include <cstdint>
#include <functional>

namespace quillon {

/// What makes two scramblings of one value differ.
struct ScrambleSeed {
    int second = 0; // 0 to 59: how far the alphabet is shifted
    int minute = 0; // 0 to 59
    std::function<std::uint32_t(std::uint32_t below)> random;
};

/// A value with a character outside the alphabet comes back as it was given, and so does an empty
/// one.
Text ScrambleString(const Text& value, const ScrambleSeed& seed);

/// The inverse. A text that `ScrambleString` cannot have scrambled is taken as plain.
Text UnscrambleString(const Text& scrambled);

} // namespace quillon
