#include "runtime/win32/screen/screen_sound.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "platform/win32/open_file.h"
#include "platform/win32/program_path.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_files.h"
#include "runtime/win32/processes/program_start.h"

#include <utility>
#include <windows.h>

namespace quillon {

namespace {

// With the handle of the pipe after it.
constexpr std::string_view kPlay = "/SOUND=";

constexpr int kNotPlayed = 1;
constexpr DWORD kPollTime = 200; // milliseconds between two looks at whether the sound has ended
// The longest that the setup waits for a player to end by itself, and then for the system to end
// it, milliseconds. What a driver holds beyond that, the next setup removes with the private
// folder.
constexpr DWORD kStopTime = 300;

// What Windows loads by the name alone while it plays a sound, on those of its versions that can't
// have a way to say where to look.
constexpr const char* kSoundLibraries[] = {
    "mciwave.dll",  "mciseq.dll",  "mciqtz32.dll", "msacm32.dll", "msacm32.drv",
    "wdmaud.drv",   "midimap.dll", "ksuser.dll",   "avrt.dll",    "mmdevapi.dll",
    "audioses.dll", "devenum.dll", "quartz.dll",   "msdmo.dll",   "dsound.dll",
};

// The parent writes the command at once and whole.
Text ReadCommand(HANDLE pipe)
{
    Text command(2 * 32768, '\0');
    DWORD count = 0;
    if (GetFileType(pipe) != FILE_TYPE_PIPE ||
        !ReadFile(pipe, command.data(), static_cast<DWORD>(command.size()), &count, nullptr))
        count = 0;
    command.resize(count);
    return command;
}

bool IsBroken(HANDLE pipe)
{
    return !PeekNamedPipe(pipe, nullptr, 0, nullptr, nullptr, nullptr);
}

} // namespace

ScreenSound::ScreenSound(const DesignFiles& design, Text name, Text folder)
    : design_(design), name_(std::move(name)), folder_(std::move(folder))
{
}

ScreenSound::~ScreenSound()
{
    EndPlayer();
    const SoundKind* const kind = KindOfSound(name_);
    if (kind != nullptr && !folder_.empty())
        DeleteFileW(WidePath(JoinPath(folder_, kind->name)).c_str());
}

void ScreenSound::EndPlayer()
{
    if (process_ == nullptr)
        return;
    CloseHandle(pipe_);
    if (WaitForSingleObject(process_, kStopTime) != WAIT_OBJECT_0) {
        TerminateProcess(process_, kNotPlayed);
        WaitForSingleObject(process_, kStopTime);
    }
    CloseHandle(process_);
    process_ = nullptr;
}

void ScreenSound::Start()
{
    const SoundKind* const kind = KindOfSound(name_);
    if (process_ != nullptr || name_.empty())
        return;
    isUnplayable_ = true;
    try {
        if (kind == nullptr || design_.Files().Status(name_).size > kMaxSoundSize)
            return;
        isUnplayable_ = !StartPlayer(OpenSoundCommand(*kind, MakeFile(*kind)));
    } catch (const RunError&) {
        // A failure of the sound must not stop the setup.
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

bool ScreenSound::StartPlayer(const Text& open)
{
    HANDLE read = nullptr;
    HANDLE write = nullptr;
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    if (!CreatePipe(&read, &write, &inherited, static_cast<DWORD>(open.size())))
        return false;
    const FileHandle readEnd(read);
    // Otherwise the pipe would never break for the reader.
    SetHandleInformation(write, HANDLE_FLAG_INHERIT, 0);
    std::wstring line = Wide("\"" + ProgramPath() + "\" " + Text(kPlay) +
                             NumberText(reinterpret_cast<INT_PTR>(read)));
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_FORCEOFFFEEDBACK; // no pointer of a program that is on its way
    PROCESS_INFORMATION process{};
    DWORD written = 0;
    if (!WriteFile(write, open.data(), static_cast<DWORD>(open.size()), &written, nullptr) ||
        !CreateProcessW(Wide(ProgramPath()).c_str(), line.data(), nullptr, nullptr, TRUE,
                        CREATE_NO_WINDOW, nullptr, nullptr, &startup, &process)) {
        CloseHandle(write);
        return false;
    }
    CloseHandle(process.hThread);
    pipe_ = write;
    process_ = process.hProcess;
    return true;
}

bool ScreenSound::HasFailed() const
{
    DWORD code = 0;
    return isUnplayable_ ||
           (process_ != nullptr && WaitForSingleObject(process_, 0) == WAIT_OBJECT_0 &&
            GetExitCodeProcess(process_, &code) && code != 0);
}

SendSoundCommand LoadSoundPlayer()
{
    for (const char* name : kSoundLibraries)
        LoadFromSystemFolder(name);
    const HMODULE library = LoadFromSystemFolder("winmm.dll");
    return library == nullptr ? nullptr
                              : reinterpret_cast<SendSoundCommand>(reinterpret_cast<void*>(
                                    GetProcAddress(library, "mciSendStringW")));
}

std::optional<int> PlayForParent(std::string_view commandLine, SendSoundCommand (*findPlayer)())
{
    if (!commandLine.starts_with(kPlay))
        return std::nullopt;
    const FileHandle pipe(reinterpret_cast<HANDLE>(
        static_cast<INT_PTR>(LeadingNumber(commandLine.substr(kPlay.size())))));
    const Text open = ReadCommand(pipe.Get());
    if (open.empty())
        return kNotPlayed;
    const SendSoundCommand player = findPlayer();
    const auto send = [player](const Text& command, Text* answer) {
        wchar_t words[32] = {};
        if (player == nullptr || player(Wide(command).c_str(), words, 32, nullptr) != 0)
            return false;
        if (answer != nullptr)
            *answer = Narrow(words);
        return true;
    };
    const bool isPlayed = PlayOverAndOver(open, send, [&](bool hasTime) {
        if (hasTime)
            Sleep(kPollTime);
        return IsBroken(pipe.Get());
    });
    return isPlayed ? 0 : kNotPlayed;
}

} // namespace quillon
