// Picture files as the screen and the pages of a setup show them: bitmaps, JPEG pictures and
// metafiles, distinguished by what is in the file. Tool and setup read them by this code, so that
// both show the same pixels; only what a JPEG file holds is decoded by the system's own means.
//
// Files come from anywhere. Reading one always ends soon and takes no more than 256 MiB in all;
// what is damaged or too large gives a reason. A caller that keeps several pictures gives each one
// only what the others leave.
#pragma once

#include "design/scalable_picture.h"
#include "platform/file_system.h"

#include <string>

namespace quillon {

enum class PictureFault { None, NotFound, Unreadable, UnknownFormat, Damaged, TooLarge };

struct PictureResult {
    // Empty where there is a fault.
    ScalablePicture picture;
    PictureFault fault = PictureFault::None;
};

enum class PictureFormat { Unknown, Bitmap, Jpeg, Metafile };

/// By the first bytes of a file.
PictureFormat PictureFormatOf(std::string_view bytes);

/// All that the pictures of a design take together, in bytes, with the file that is being read:
/// below 256 MiB with room for the rest of the program.
inline constexpr std::int64_t kMaxPicturesMemory = std::int64_t{224} << 20;

/// `memory` is what the picture may take with its file. Throws nothing but `std::bad_alloc`.
PictureResult DecodePicture(std::string bytes, std::int64_t memory = kMaxPicturesMemory);

/// Nothing is thrown.
PictureResult ReadPictureFile(const FileSystem& files, const Text& path,
                              std::int64_t memory = kMaxPicturesMemory);

// Larger than any screen, and a fourth of what the whole may take.
inline constexpr std::int64_t kMaxPicturePixels = 25'000'000;
inline constexpr std::int64_t kMaxPictureSide = 65535;
inline constexpr std::uint64_t kMaxPictureFileBytes = 112U << 20;

} // namespace quillon
