// The pixels of bitmaps with run lengths.
#pragma once

#include "pictures/bitmap.h"

#include <vector>

namespace quillon {

/// Fills `picture`, which has its size already, from the bottom. What the file leaves out has the
/// first colour. False where the file is damaged or ends before its picture does.
bool DecodeRunLengths(PictureBytes runs, int bits, const std::vector<Pixel>& palette,
                      Picture& picture);

} // namespace quillon
