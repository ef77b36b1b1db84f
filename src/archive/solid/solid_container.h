// Reads a solid container: FILEDATA.DAT of a package that is to be as small as it can be.
//
// The constraints that shaped it:
//
// - The setup installs chosen components, so it has to get at single files. The files' bytes are
// one
//   stream that is cut into frames; a file costs the unpacking of what is before it in its frame,
//   and nothing where the files are asked for in the order of the container. Frames with
//   nothing that is wanted are passed over.
// - Memory: one frame's window, at most 32 MiB, and a last file that serves several rows, which
// come one
//   behind the other.
// - The packed bytes of a frame are compared with their SHA-256 before the first of them is
//   unpacked, and the index with its own. An attacker can make the digests fit, so the sizes of
//   what comes out are checked nevertheless.
#pragma once

#include "archive/container.h"
#include "archive/solid/frame_decoding.h"

namespace quillon {

/// Whether a file ends in a solid container's trailer, without a look at whether it is whole.
bool IsSolidContainer(InputFile& file);

class SolidContainer : public Container {
public:
    /// Reads the index. Throws `ZipError`, or `RunError` when the file can't be read.
    SolidContainer(std::unique_ptr<InputFile> file, const FrameDecoding& decoding);
    ~SolidContainer() override;

    /// In the order in which they are unpacked fastest.
    const std::vector<ZipEntry>& Entries() const override;
    void Extract(const ZipEntry& entry, const Text& password, const ZipReader::Sink& sink) override;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillon
