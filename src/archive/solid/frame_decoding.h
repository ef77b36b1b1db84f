// What unpacking a frame of Zstandard needs, as functions that are handed in: the setup takes them
// from the library that travels with a package of that kind, all other programs from the library
// that they are linked with. Plain C, since the library uses nothing of the C++ library.
#pragma once

#include <cstddef>

namespace quillon {

/// One step of a frame: how much there is, and how much of it was used.
struct FrameStep {
    const void* input;
    std::size_t inputSize;
    std::size_t inputUsed;
    void* output;
    std::size_t outputSize;
    std::size_t outputUsed;
};

enum class FrameState : int { Damaged = -1, Complete = 0, GoesOn = 1 };

struct FrameDecoding {
    /// Null where there is too little memory. A frame that wants a larger window is damaged.
    void* (*begin)(int maxWindowLog) = nullptr;
    /// Forgets the frame that was begun.
    void (*reset)(void* decoder) = nullptr;
    int (*go)(void* decoder, FrameStep* step) = nullptr; // a `FrameState`
    void (*end)(void* decoder) = nullptr;
};

FrameDecoding LinkedFrameDecoding();

} // namespace quillon
