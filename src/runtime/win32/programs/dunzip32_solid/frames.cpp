// DUNZIP32.DLL of a package with a solid container: zlib as in every package, and the decoder of
// zstd.
#include "archive/solid/frame_functions.h"
#include "runtime/package/unzip_library.h"

extern "C" {

[[gnu::externally_visible]] void* QnFramesBegin(int maxWindowLog)
{
    return quillon::BeginFrames(maxWindowLog);
}

[[gnu::externally_visible]] void QnFramesReset(void* decoder)
{
    quillon::ResetFrames(decoder);
}

[[gnu::externally_visible]] int QnFramesGo(void* decoder, quillon::FrameStep* step)
{
    return quillon::StepFrame(decoder, step);
}

[[gnu::externally_visible]] void QnFramesEnd(void* decoder)
{
    quillon::EndFrames(decoder);
}

} // extern "C"
