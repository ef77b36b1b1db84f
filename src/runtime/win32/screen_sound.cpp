#include "runtime/win32/screen_sound.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "runtime/win32/program_start.h"

#include <atomic>
#include <windows.h>

namespace quillon {

namespace {

constexpr DWORD kPollTime = 200; // milliseconds between two looks at whether the sound has ended
// The longest that the setup waits for a driver to let go of the file, milliseconds. One that takes
// longer may hang: the next setup removes what it holds, with the private folder.
constexpr DWORD kStopTime = 300;

// What Windows loads by the name alone while it plays a sound, on those of its versions that can't
// be told where to look.
constexpr const char* kSoundLibraries[] = {
    "mciwave.dll",  "mciseq.dll",  "mciqtz32.dll", "msacm32.dll", "msacm32.drv",
    "wdmaud.drv",   "midimap.dll", "ksuser.dll",   "avrt.dll",    "mmdevapi.dll",
    "audioses.dll", "devenum.dll", "quartz.dll",   "msdmo.dll",   "dsound.dll",
};

} // namespace

ScreenSound::SendCommand ScreenSound::LoadPlayer()
{
    for (const char* name : kSoundLibraries)
        LoadFromSystemFolder(name);
    const HMODULE library = LoadFromSystemFolder("winmm.dll");
    return library == nullptr ? nullptr
                              : reinterpret_cast<SendCommand>(reinterpret_cast<void*>(
                                    GetProcAddress(library, "mciSendStringW")));
}

struct ScreenSound::Playing {
    Text open; // the command
    FindPlayer findPlayer;
    HANDLE stop = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    std::atomic<bool> hasFailed = false;

    Playing(Text command, FindPlayer find) : open(std::move(command)), findPlayer(find) {}
    ~Playing() { CloseHandle(stop); }
    Playing(const Playing&) = delete;
    Playing& operator=(const Playing&) = delete;

    bool IsStopped(DWORD wait) const { return WaitForSingleObject(stop, wait) == WAIT_OBJECT_0; }
};

ScreenSound::ScreenSound(const DesignFiles& design, Text name, Text folder, FindPlayer findPlayer)
    : design_(design), name_(std::move(name)), folder_(std::move(folder)), findPlayer_(findPlayer)
{
}

ScreenSound::~ScreenSound()
{
    if (thread_ != nullptr) {
        SetEvent(playing_->stop);
        WaitForSingleObject(thread_, kStopTime);
        CloseHandle(thread_);
    }
    const SoundKind* const kind = KindOfSound(name_);
    if (kind != nullptr && !folder_.empty())
        DeleteFileW(WidePath(JoinPath(folder_, kind->name)).c_str());
}

void ScreenSound::Start()
{
    const SoundKind* const kind = KindOfSound(name_);
    if (thread_ != nullptr || name_.empty())
        return;
    isUnplayable_ = true;
    try {
        if (kind == nullptr || design_.Files().Status(name_).size > kMaxSoundSize)
            return;
        playing_ = std::make_shared<Playing>(OpenSoundCommand(*kind, MakeFile(*kind)), findPlayer_);
        auto given = std::make_unique<std::shared_ptr<Playing>>(playing_);
        thread_ = CreateThread(nullptr, 0, Play, given.get(), 0, nullptr);
        if (thread_ == nullptr)
            return;
        given.release();
        isUnplayable_ = false;
    } catch (const RunError&) {
        // A setup without its sound is a setup all the same.
    }
}

Text ScreenSound::MakeFile(const SoundKind& kind) const
{
    if (folder_.empty())
        return name_;
    const Text path = JoinPath(folder_, kind.name);
    WinFiles files;
    WriteWholeFile(files, path, ReadWholeFile(design_.Files(), name_));
    return path;
}

bool ScreenSound::HasFailed() const
{
    return isUnplayable_ || (playing_ && playing_->hasFailed);
}

unsigned long __stdcall ScreenSound::Play(void* playing)
{
    const std::unique_ptr<std::shared_ptr<Playing>> mine(
        static_cast<std::shared_ptr<Playing>*>(playing));
    const SendCommand player = (*mine)->findPlayer();
    const auto send = [player](const Text& command, Text* answer) {
        wchar_t words[32] = {};
        if (player == nullptr || player(Wide(command).c_str(), words, 32, nullptr) != 0)
            return false;
        if (answer != nullptr)
            *answer = Narrow(words);
        return true;
    };
    (*mine)->hasFailed = !PlayOverAndOver((*mine)->open, send, [&](bool hasTime) {
        return (*mine)->IsStopped(hasTime ? kPollTime : 0);
    });
    return 0;
}

} // namespace quillon
