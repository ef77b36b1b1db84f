// The rules of the dialog that chooses where new files go.
#pragma once

#include "platform/ask.h"
#include "project/records.h"

#include <optional>
#include <vector>

namespace quillon {

// How many destinations are offered again the next time.
inline constexpr std::size_t kRecentDestinations = 4;

/// The destination for what was chosen and typed; nothing, with a message box, where the text can't
/// be one.
std::optional<Text> MakeDestination(DestinationQuestion::Place place, const Text& typed, Ask& ask);

/// What the dropdown offers, newest first.
std::vector<Text> RecentDestinationDirectories(const OpenProjectState& state);

/// Puts a folder of the user's own in front of what the dropdown offers. One that it holds already
/// keeps its place; the last one beyond the limit is dropped.
void RememberDestination(OpenProjectState& state, const Text& destination);

/// The variables that are offered while a folder of the user's own is typed. The system's folders
/// are no part of them, since these have option buttons.
std::vector<Text> DestinationVariables();

} // namespace quillon
