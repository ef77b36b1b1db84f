#include "archive/solid/writer/frame_packer.h"

#include "archive/solid/container_index.h"
#include "archive/solid/writer/zstd_result.h"

#include <new>
#include <utility>

namespace quillon {

namespace {

constexpr int kLevel = 17;

} // namespace

FramePacker::FramePacker() : encoder_(ZSTD_createCCtx())
{
    if (!encoder_)
        throw std::bad_alloc();
    for (const auto& [parameter, value] :
         {std::pair(ZSTD_c_compressionLevel, kLevel),
          std::pair(ZSTD_c_windowLog, kMaxContainerWindowLog),
          std::pair(ZSTD_c_enableLongDistanceMatching, 1), std::pair(ZSTD_c_checksumFlag, 1)})
        CheckedSize(ZSTD_CCtx_setParameter(encoder_.get(), parameter, value));
}

PackedFrame FramePacker::operator()(const zip::Bytes& content)
{
    PackedFrame packed{zip::Bytes(ZSTD_compressBound(content.size())), {}};
    packed.bytes.resize(CheckedSize(ZSTD_compress2(
        encoder_.get(), packed.bytes.data(), packed.bytes.size(), content.data(), content.size())));
    Sha256 digest;
    digest.Add(packed.bytes);
    packed.digest = digest.Finish();
    return packed;
}

} // namespace quillon
