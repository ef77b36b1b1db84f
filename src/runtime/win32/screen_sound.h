// Plays the sound of the screen on a thread of its own: whatever a driver waits for, the setup goes
// on.
#pragma once

#include "runtime/background_sound.h"
#include "runtime/pages/design_files.h"

#include <memory>

struct HWND__;

namespace quillon {

class ScreenSound : public BackgroundSound {
public:
    /// Hands a command to the system's player; 0 where it was carried out. Null: there is none.
    using SendCommand = unsigned long(__stdcall*)(const wchar_t* command, wchar_t* answer,
                                                  unsigned size, HWND__* window);
    /// Called on the thread of the sound, since loading a driver may take its time, too.
    using FindPlayer = SendCommand (*)();

    /// `name` is one of `design`. Its bytes go to `folder`, which is private, since Windows plays
    /// files alone; an empty folder means that `name` is a file already.
    ScreenSound(const DesignFiles& design, Text name, Text folder,
                FindPlayer findPlayer = LoadPlayer);
    /// Silence, and no file, but where a driver hangs.
    ~ScreenSound() override;
    ScreenSound(const ScreenSound&) = delete;
    ScreenSound& operator=(const ScreenSound&) = delete;

    void Start() override;
    bool HasFailed() const override;

private:
    struct Playing;
    Text MakeFile(const SoundKind& kind) const;
    static SendCommand LoadPlayer();
    static unsigned long __stdcall Play(void* playing);

    const DesignFiles& design_;
    const Text name_;
    const Text folder_;
    const FindPlayer findPlayer_;
    std::shared_ptr<Playing> playing_; // the thread's as well
    void* thread_ = nullptr;
    bool isUnplayable_ = false;
};

} // namespace quillon
