// Solid containers that may say anything, with digests that fit.
#pragma once

#include "archive/solid/container_index.h"
#include "helpers/sha256.h"

#include <zstd.h>

#include <algorithm>
#include <span>
#include <string>

namespace quillon::test {

inline std::string PackFrame(const std::string& content)
{
    std::string packed(ZSTD_compressBound(content.size()), '\0');
    packed.resize(ZSTD_compress(packed.data(), packed.size(), content.data(), content.size(), 1));
    return packed;
}

/// The end of a container: the packed index and the trailer, whose digest fits.
inline std::string ContainerEnd(const std::string& packedIndex, ContainerTrailer trailer)
{
    trailer.packedIndexSize = packedIndex.size();
    std::string end = packedIndex;
    zip::Bytes fields;
    zip::AppendFields(fields, trailer);
    end.append(reinterpret_cast<const char*>(fields.data()), fields.size());
    Sha256 digest;
    digest.Add(std::as_bytes(std::span(end)));
    const Sha256Digest hash = digest.Finish();
    return end.append(reinterpret_cast<const char*>(hash.data()), hash.size());
}

/// Puts the digests of the frames, which follow one another, into the index.
inline std::string CompleteContainer(ContainerIndex index, const std::string& frames)
{
    std::size_t at = 0;
    for (ContainerFrame& frame : index.frames) {
        const std::size_t size = std::min<std::size_t>(frame.packedSize, frames.size() - at);
        Sha256 digest;
        digest.Add(std::as_bytes(std::span(frames).subspan(at, size)));
        frame.digest = digest.Finish();
        at += size;
    }
    const zip::Bytes bytes = ContainerIndexBytes(index);
    const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return frames + ContainerEnd(PackFrame(text),
                                 {.indexPosition = frames.size(), .indexSize = text.size()});
}

} // namespace quillon::test
