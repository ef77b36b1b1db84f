// Metafiles: a player of our own for the calls that drawings in WMF files are made of. There is no
// window system below it, so that the setup, `quillonc` and the desktop tool draw the same pixels.
#pragma once

#include "pictures/picture_file.h"

namespace quillon {

inline constexpr std::size_t kMaxMetafileBytes = 48U << 20;

bool IsMetafile(std::string_view bytes);

/// The picture is drawn when it is asked for, in the size that is asked for.
PictureResult DecodeMetafile(std::string bytes);

} // namespace quillon
