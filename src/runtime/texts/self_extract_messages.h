// The texts of the self-extractor, by its keys of the language file, and in Swedish for a program
// whose project's language file lacks them. The program carries these texts alone.
#pragma once

#include "runtime/texts/starter_messages.h"

namespace quillon {

// clang-format off
namespace SelfExtractMessages {
inline constexpr StarterMessage kDamaged{"Msg_ExeDamaged", "Filen är skadad eller inte hel. Hämta den en gång till. Ingenting har installerats."};
inline constexpr StarterMessage kDiskFull = StarterMessages::kNoRoom;
inline constexpr StarterMessage kFailed{"Msg_ExeFailed", "Installationen kan inte packas upp: '%1'."};
inline constexpr StarterMessage kHelp{"Msg_ExeHelp", "/extract:mapp packar upp filerna i mappen och installerar ingenting. /version visar version. Andra växlar går vidare till installationsprogrammet."};
inline constexpr StarterMessage kNoFolder{"Msg_ExeNoFolder", "Växeln /extract behöver en mapp."};
inline constexpr StarterMessage kUnpacking{"Msg_Extract", ""}; // the window is not shown then
} // namespace SelfExtractMessages
// clang-format on

} // namespace quillon
