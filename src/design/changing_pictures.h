// The list of pictures that change in one place of the screen.
#pragma once

#include "platform/ask.h"
#include "project/records.h"

#include <vector>

namespace quillon {

inline constexpr std::size_t kMaxChangingPictures = 20;

/// The files in showing order.
std::vector<Text> ChangingPictures(const section::DesPicturesAnim& record);

/// Files beyond the room of the record are left out; an editor adds no more than
/// `kMaxChangingPictures`.
void SetChangingPictures(section::DesPicturesAnim& record, const std::vector<Text>& files);

/// Whether a list of so many takes one more; where not, a box says so.
bool MayAddChangingPicture(std::size_t count, Ask& ask);

} // namespace quillon
