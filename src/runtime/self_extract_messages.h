// What the self-extractor tells, by its keys of the language file, and in Swedish for a program
// whose project's language file lacks them. The program carries these texts alone.
#pragma once

namespace quillon {

struct SelfExtractMessage {
    const char* key;
    const char* swedish;
};

// clang-format off
namespace SelfExtractMessages {
inline constexpr SelfExtractMessage kDamaged{"Msg_ExeDamaged", "Filen är skadad eller inte hel. Hämta den en gång till. Ingenting har installerats."};
inline constexpr SelfExtractMessage kDiskFull{"Msg_ExeDiskFull", "Det finns inte plats att packa upp installationen i '%1'."};
inline constexpr SelfExtractMessage kFailed{"Msg_ExeFailed", "Installationen kan inte packas upp: '%1'."};
inline constexpr SelfExtractMessage kHelp{"Msg_ExeHelp", "/extract:mapp packar upp filerna i mappen och installerar ingenting. /version visar version. Andra växlar går vidare till installationsprogrammet."};
inline constexpr SelfExtractMessage kNoFolder{"Msg_ExeNoFolder", "Växeln /extract behöver en mapp."};
inline constexpr SelfExtractMessage kUnpacking{"Msg_Extract", ""}; // nothing is shown then
} // namespace SelfExtractMessages
// clang-format on

} // namespace quillon
