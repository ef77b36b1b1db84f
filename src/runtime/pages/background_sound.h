// The sound of the screen that is shown under the pages.
#pragma once

#include "helpers/text.h"

#include <array>
#include <cstdint>

namespace quillon {

/// A kind of sound that Windows plays by itself.
struct SoundKind {
    const char* ending;
    const char* device; // of the media control interface
    const char* name;   // of the file in the setup's private folder
};
inline constexpr std::array<SoundKind, 5> kSoundKinds{{
    {".WAV", "waveaudio", "QNSOUND.WAV"},
    {".MID", "sequencer", "QNSOUND.MID"},
    {".MIDI", "sequencer", "QNSOUND.MID"},
    {".RMI", "sequencer", "QNSOUND.MID"},
    {".MP3", "mpegvideo", "QNSOUND.MP3"},
}};

/// Null for any other kind.
inline const SoundKind* KindOfSound(std::string_view file)
{
    for (const SoundKind& kind : kSoundKinds)
        if (UpperCase(file).ends_with(kind.ending))
            return &kind;
    return nullptr;
}

/// The command that opens the file, for `PlayOverAndOver`.
inline Text OpenSoundCommand(const SoundKind& kind, std::string_view path)
{
    return "open \"" + Text(path) + "\" type " + kind.device + " alias quillon";
}

/// Plays a sound until `isStopped(wait)` says so, which is asked at least once in each round, with
/// whether there is time to wait. `send(command, answer)` hands a command of the media control
/// interface to Windows; `answer` is null where none is wanted. False where the sound can't be
/// played.
template <class Send, class IsStopped>
bool PlayOverAndOver(const Text& open, Send send, IsStopped isStopped)
{
    if (!send(open, nullptr))
        return false;
    bool isPlayed = true;
    while (isPlayed && !isStopped(false)) {
        isPlayed = send("play quillon from 0", nullptr);
        Text mode = "playing";
        while (isPlayed && EqualIgnoreCase(mode, "playing") && !isStopped(true))
            if (!send("status quillon mode", &mode))
                mode.clear();
    }
    send("close quillon", nullptr);
    return isPlayed;
}

/// A sound is read into memory once.
inline constexpr std::uint64_t kMaxSoundSize = 16 * 1024 * 1024;

class BackgroundSound {
public:
    virtual ~BackgroundSound() = default;

    /// Begins to play, over and over, without waiting. Never throws.
    virtual void Start() = 0;
    /// Whether it is known by now that it can't be played.
    virtual bool HasFailed() const = 0;
};

} // namespace quillon
