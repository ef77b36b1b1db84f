// The functions of `FrameDecoding`, carried out by zstd: one definition for the library that
// travels with packages and for what is linked.
#pragma once

#include "archive/solid/frame_decoding.h"

#include <zstd.h>

namespace quillon {

inline void* BeginFrames(int maxWindowLog)
{
    ZSTD_DCtx* const decoder = ZSTD_createDCtx();
    if (decoder != nullptr)
        ZSTD_DCtx_setParameter(decoder, ZSTD_d_windowLogMax, maxWindowLog);
    return decoder;
}

inline void ResetFrames(void* decoder)
{
    ZSTD_DCtx_reset(static_cast<ZSTD_DCtx*>(decoder), ZSTD_reset_session_only);
}

inline int StepFrame(void* decoder, FrameStep* step)
{
    ZSTD_inBuffer input{step->input, step->inputSize, 0};
    ZSTD_outBuffer output{step->output, step->outputSize, 0};
    const std::size_t result =
        ZSTD_decompressStream(static_cast<ZSTD_DCtx*>(decoder), &output, &input);
    step->inputUsed = input.pos;
    step->outputUsed = output.pos;
    if (ZSTD_isError(result) != 0)
        return static_cast<int>(FrameState::Damaged);
    return static_cast<int>(result == 0 ? FrameState::Complete : FrameState::GoesOn);
}

inline void EndFrames(void* decoder)
{
    ZSTD_freeDCtx(static_cast<ZSTD_DCtx*>(decoder));
}

} // namespace quillon
