// What a solid container says about its frames and files: docs/solid-container.md has the format.
#pragma once

#include "archive/solid/solid_table.h"
#include "archive/zip_reader.h"
#include "helpers/sha256.h"

namespace quillon {

/// The largest window of a frame, and so what unpacking takes of memory.
inline constexpr int kMaxContainerWindowLog = 25;
/// How many of the files' bytes are in each frame but the last. A frame is no larger than its
/// window.
inline constexpr std::uint32_t kMaxContainerFrameSize = std::uint32_t(1) << kMaxContainerWindowLog;
inline constexpr std::uint64_t kMaxContainerIndexSize = 64 * 1024 * 1024;

struct ContainerFrame {
    std::uint32_t packedSize = 0;
    Sha256Digest digest{}; // of the packed bytes
};

/// The files' bytes follow one another, and are cut into frames of one size whatever the
/// borders of the files.
struct ContainerIndex {
    std::uint32_t frameSize = kMaxContainerFrameSize;
    std::vector<ContainerFrame> frames; // in the order of the file
    // In the order of their bytes. `headerPosition` is the place of the first among all files'
    // bytes, and `method` the filter.
    std::vector<ZipEntry> entries;
    std::uint64_t totalSize = 0; // of the files
};

zip::Bytes ContainerIndexBytes(const ContainerIndex& index);

/// Throws `ZipError` for whatever does not fit together.
ContainerIndex ReadContainerIndex(std::span<const std::byte> bytes);

/// The end of a container: what finds the index, and its digest.
struct ContainerTrailer {
    static constexpr std::uint64_t kMark = 0x1A4C4C414D534E51; // "QNSMALL" and 1A
    static constexpr std::uint32_t kVersion = 1;

    std::uint64_t mark = kMark;
    std::uint32_t version = kVersion;
    std::uint32_t flags = 0;         // none are known yet
    std::uint64_t indexPosition = 0; // where the frames end
    std::uint64_t packedIndexSize = 0;
    std::uint64_t indexSize = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.mark);
        visit(self.version);
        visit(self.flags);
        visit(self.indexPosition);
        visit(self.packedIndexSize);
        visit(self.indexSize);
    }
};

inline constexpr std::size_t kContainerTrailerFields = zip::FieldsSize(ContainerTrailer{});
/// Behind the fields is the SHA-256 of the packed index and the fields.
inline constexpr std::size_t kContainerTrailerSize =
    kContainerTrailerFields + std::tuple_size_v<Sha256Digest>;

} // namespace quillon
