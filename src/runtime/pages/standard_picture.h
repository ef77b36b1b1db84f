// The picture beside the text of a page that has none of its own: an evening sky over water. The
// tool keeps it as a file; in a setup it is drawn, which takes a fiftieth of the room.
#pragma once

#include "design/picture.h"

namespace quillon {

Picture StandardSidePicture();

} // namespace quillon
