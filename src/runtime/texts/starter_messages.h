// The texts of a starter before a language file or a journal can be read, or where that lacks them:
// the keys of those two, and the text in Swedish. The programs carry these texts alone.
#pragma once

namespace quillon {

/// A text of a program that has no table of messages in it.
struct StarterMessage {
    const char* key;
    const char* swedish;
};

// clang-format off
namespace StarterMessages {
inline constexpr StarterMessage kExtract{"Msg_Extract", "Förbereder installationen. Vänta..."};
inline constexpr StarterMessage kNoRuntime{"Msg_NoRuntime", "Installationen kan inte startas. Filen '%1' saknas eller är skadad."};
inline constexpr StarterMessage kNoRoom{"Msg_ExeDiskFull", "Det finns inte plats att packa upp installationen i '%1'."};
inline constexpr StarterMessage kNoUninstaller{"Err_NoLog", "Avinstallationen kan inte startas. Filen '%1' saknas eller är skadad."};
inline constexpr StarterMessage kNoRoomToUninstall{"Err_NoRoom", "Avinstallationen kan inte startas. Det finns inte plats i '%1'."};
} // namespace StarterMessages
// clang-format on

} // namespace quillon
