// Plays the sound of the screen in a process of its own: the running program, started once more. A
// driver that hangs or crashes there, even while it is loaded, holds up and ends nothing else.
//
// The process gets its file through a pipe that only the parent can hand down, and plays until the
// pipe breaks, which the end of the parent does too, whatever ends that.
#pragma once

#include "runtime/pages/background_sound.h"
#include "runtime/pages/design_files.h"

#include <optional>

struct HWND__;

namespace quillon {

class ScreenSound : public BackgroundSound {
public:
    /// `name` is one of `design`. Its bytes go to `folder`, which is private, since Windows plays
    /// files alone; an empty folder means that `name` is a file already. The running program has to
    /// call `PlayForParent` first.
    ScreenSound(const DesignFiles& design, Text name, Text folder);
    /// Stops the sound and removes its file.
    ~ScreenSound() override;
    ScreenSound(const ScreenSound&) = delete;
    ScreenSound& operator=(const ScreenSound&) = delete;

    void Start() override;
    bool HasFailed() const override;

private:
    Text MakeFile(const SoundKind& kind) const;
    bool StartPlayer(const Text& open);
    void EndPlayer();

    const DesignFiles& design_;
    const Text name_;
    const Text folder_;
    void* pipe_ = nullptr;
    void* process_ = nullptr;
    bool isUnplayable_ = false;
};

/// Hands a command to the system's player; 0 where it was carried out. Null: there is none.
using SendSoundCommand = unsigned long(__stdcall*)(const wchar_t* command, wchar_t* answer,
                                                   unsigned size, HWND__* window);
SendSoundCommand LoadSoundPlayer();

/// What the second process does; nothing where the command line asks for something else.
std::optional<int> PlayForParent(std::string_view commandLine,
                                 SendSoundCommand (*findPlayer)() = LoadSoundPlayer);

} // namespace quillon
