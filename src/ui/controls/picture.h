// Pictures that users choose, read through the machine's files. A file that is damaged, huge or no
// picture at all is treated as no picture.
#pragma once

#include "platform/file_system.h"

#include <optional>

class QImage;
class QString;

namespace quillon {

/// Bitmaps, JPEG pictures and metafiles as the setup shows them, and GIF and PNG pictures and
/// icons, distinguished by what is in the file. Nothing comes back where there is no such picture
/// or one too large to show; nothing is thrown.
std::optional<QImage> LoadPicture(const FileSystem& files, const Text& path);

/// What is in the place of a picture that `LoadPicture` did not give.
QString WhyNoPicture(const FileSystem& files, const Text& path);

/// An icon in all sizes that its file has, each in its best colours, beside each other. A file that
/// holds another kind of picture gives that one.
std::optional<QImage> LoadIconPicture(const FileSystem& files, const Text& path);

} // namespace quillon
