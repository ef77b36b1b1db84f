// Packs one frame of a solid container, as each thread does it.
#pragma once

#include "archive/zip_records.h"
#include "helpers/closer.h"
#include "helpers/sha256.h"

#include <zstd.h>

#include <memory>

namespace quillon {

struct PackedFrame {
    zip::Bytes bytes;
    Sha256Digest digest{};
};

class FramePacker {
public:
    FramePacker();

    PackedFrame operator()(const zip::Bytes& content);

private:
    std::unique_ptr<ZSTD_CCtx, Closer<ZSTD_freeCCtx>> encoder_;
};

} // namespace quillon
