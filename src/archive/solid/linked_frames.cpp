#include "archive/solid/frame_functions.h"

namespace quillon {

FrameDecoding LinkedFrameDecoding()
{
    return {BeginFrames, ResetFrames, StepFrame, EndFrames};
}

} // namespace quillon
