#include "archive/solid/solid_stream.h"

#include "archive/solid/solid_error.h"
#include "helpers/closer.h"

#include <zstd.h>

#include <algorithm>
#include <new>

namespace quillon {

namespace {

constexpr std::size_t kInputSize = 128 * 1024;

} // namespace

struct SolidStream::State {
    InputFile& file;
    std::uint64_t position;
    std::uint64_t left;
    std::unique_ptr<ZSTD_DCtx, Closer<ZSTD_freeDCtx>> decoder;
    zip::Bytes buffer;
    ZSTD_inBuffer input{nullptr, 0, 0};
    bool isFrameDone = false;

    void Refill();
    void Decode(ZSTD_outBuffer& output);
};

SolidStream::SolidStream(InputFile& file, const SolidTrailer& trailer)
    : state_(new State{file, trailer.streamBegin, trailer.streamSize,
                       std::unique_ptr<ZSTD_DCtx, Closer<ZSTD_freeDCtx>>(ZSTD_createDCtx()),
                       zip::Bytes(kInputSize)})
{
    if (!state_->decoder)
        throw std::bad_alloc();
    ZSTD_DCtx_setParameter(state_->decoder.get(), ZSTD_d_windowLogMax, kMaxSolidWindowLog);
}

SolidStream::~SolidStream() = default;

void SolidStream::State::Refill()
{
    if (input.pos < input.size || left == 0)
        return;
    const auto wanted = static_cast<std::size_t>(std::min<std::uint64_t>(left, buffer.size()));
    file.Seek(position);
    const std::size_t got = file.Read(std::span(buffer).first(wanted));
    if (got == 0)
        RefuseSolid("filen slutar för tidigt");
    position += got;
    left -= got;
    input = {buffer.data(), got, 0};
}

void SolidStream::State::Decode(ZSTD_outBuffer& output)
{
    Refill();
    if (input.pos == input.size && left == 0 && isFrameDone)
        RefuseSolid("innehållet slutar för tidigt");
    const std::size_t result = ZSTD_decompressStream(decoder.get(), &output, &input);
    if (ZSTD_isError(result) != 0)
        RefuseSolid("innehållet kan ej packas upp");
    isFrameDone = result == 0;
}

void SolidStream::Read(std::span<std::byte> bytes)
{
    ZSTD_outBuffer output{bytes.data(), bytes.size(), 0};
    while (output.pos < output.size) {
        if (state_->isFrameDone)
            RefuseSolid("innehållet slutar för tidigt");
        const std::size_t before = output.pos;
        const bool hadInput = state_->input.pos < state_->input.size || state_->left > 0;
        state_->Decode(output);
        if (!hadInput && output.pos == before)
            RefuseSolid("innehållet slutar för tidigt");
    }
}

void SolidStream::Finish()
{
    while (!state_->isFrameDone) {
        const bool hadInput = state_->input.pos < state_->input.size || state_->left > 0;
        std::byte surplus{};
        ZSTD_outBuffer output{&surplus, 1, 0};
        state_->Decode(output);
        if (output.pos > 0)
            RefuseSolid("innehållet är längre än det anger");
        if (!hadInput && !state_->isFrameDone)
            RefuseSolid("innehållet slutar för tidigt");
    }
    if (state_->left > 0 || state_->input.pos < state_->input.size)
        RefuseSolid("något ligger bakom innehållet");
}

} // namespace quillon
