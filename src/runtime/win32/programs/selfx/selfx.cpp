// QNSELFX: the program in front of the payload of a self-extracting program. It uses nothing of the
// payload before all of it is hashed, unpacks it to a closed folder, starts the setup there with
// the switches that it was given itself, waits, cleans up and ends with the setup's code.
#include "archive/solid/solid_error.h"
#include "archive/solid/solid_unpack.h"
#include "formats/self_extraction.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/win32/locked_folder.h"
#include "platform/win32/program_path.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win_failure.h"
#include "platform/win32/win_files.h"
#include "runtime/command_line/self_extract_command.h"
#include "runtime/exit_codes.h"
#include "runtime/package/unpack_folder.h"
#include "runtime/win32/processes/program_start.h"
#include "runtime/win32/programs/selfx/selfx_texts.h"
#include "runtime/win32/programs/selfx/start_setup.h"
#include "runtime/win32/programs/selfx/unpack_window.h"

#include <windows.h>

namespace quillon {

namespace {

// The parts of the bar: the payload is hashed, then unpacked.
constexpr int kHashed = 40;
constexpr int kUnpacked = 100;

class WinFolderGuard : public FolderGuard {
public:
    bool MakeClosed(const Text& path) override
    {
        if (MakeLockedFolder(WidePath(path).c_str()))
            return true;
        if (GetLastError() != ERROR_ALREADY_EXISTS)
            FailAsWindowsSays(path);
        return false;
    }
    bool IsLink(const Text& path) const override
    {
        const DWORD attributes = GetFileAttributesW(WidePath(path).c_str());
        return attributes == INVALID_FILE_ATTRIBUTES ||
               (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    }
    bool HaveSameOwner(const Text& path, const Text& other) const override
    {
        return quillon::HaveSameOwner(WidePath(path).c_str(), WidePath(other).c_str());
    }
    unsigned Number() override { return (GetTickCount() ^ GetCurrentProcessId() << 4U) + count_++; }

private:
    unsigned count_ = 0;
};

class SelfExtractor {
public:
    SelfExtractor(HINSTANCE instance, const Text& commandLine)
        : instance_(instance), command_(ReadSelfExtractCommand(commandLine))
    {
    }

    int Run()
    {
        if (command_.wantsHelp)
            return EndWith(0, texts_(SelfExtractMessages::kHelp));
        try {
            return Work();
        } catch (const SolidError&) {
            return EndWith(kDamaged, texts_(SelfExtractMessages::kDamaged));
        } catch (const RunError& error) {
            return Fail(error);
        } catch (const std::exception&) {
            return EndWith(static_cast<int>(ExitCode::Failed),
                           texts_(SelfExtractMessages::kFailed));
        }
    }

private:
    // Windows' own number for a package of an installation that can't be read.
    static constexpr int kDamaged = 1620;

    int Work()
    {
        window_.emplace(instance_, command_.isSilent || command_.wantsVersion
                                       ? Text()
                                       : texts_(SelfExtractMessages::kUnpacking));
        const SolidReader payload(files_.OpenInput(ProgramPath()),
                                  [this](std::uint64_t done, std::uint64_t total) {
                                      window_->Show(done, total, 0, kHashed);
                                  });
        const SolidTable& table = payload.Table();
        if (command_.wantsVersion)
            return EndWith(0, table.Property(SelfExtractAttribute::kProductName) + " " +
                                  table.Property(SelfExtractAttribute::kProductVersion));
        if (command_.extractTo)
            return ExtractTo(payload);
        const bool elevates = !table.Property(SelfExtractAttribute::kElevates).empty();
        if (elevates && !command_.isElevatedInstance && !IsElevated())
            return RunElevatedInstance();
        return Install(payload);
    }

    int RunElevatedInstance()
    {
        window_.reset();
        return static_cast<int>(RunElevatedAndWait(ProgramPath(), Text(kElevatedInstanceSwitch) +
                                                                      " " + command_.forSetup));
    }

    int ExtractTo(const SolidReader& payload)
    {
        if (command_.extractTo->empty())
            return EndWith(static_cast<int>(ExitCode::BadSwitch),
                           texts_(SelfExtractMessages::kNoFolder));
        wchar_t folder[32768];
        const DWORD length =
            GetFullPathNameW(Wide(*command_.extractTo).c_str(),
                             static_cast<DWORD>(std::size(folder)), folder, nullptr);
        if (length == 0 || length >= std::size(folder))
            throw RunError(ErrorNumber::kBadFileName, *command_.extractTo);
        Unpack(payload, Narrow({folder, length}));
        return 0;
    }

    int Install(const SolidReader& payload)
    {
        const SolidTable& table = payload.Table();
        const bool isNamed = table.Property(SelfExtractAttribute::kUnpackPlace) ==
                             NumberText(Long(UnpackPlace::kNamedFolder));
        WinFolderGuard guard;
        UnpackFolder folder(files_, guard,
                            JoinPath(isNamed ? TempFolder() : ProgramFolder(), kUnpackFolderName));
        Unpack(payload, folder.Path());
        window_.reset();
        const Text name = ExtractFilename(table.Property(SelfExtractAttribute::kProgram));
        const Text program = JoinPath(folder.Path(), name);
        if (!files_.FileExists(program))
            RefuseSolid("det som ska startas saknas");
        return static_cast<int>(RunSetupAndWait(program, command_.forSetup));
    }

    void Unpack(const SolidReader& payload, const Text& folder)
    {
        const std::uint64_t total = payload.Table().TotalSize();
        FolderSink sink(files_, folder, [&](std::uint64_t done) {
            window_->Show(done, total, kHashed, kUnpacked);
        });
        sink.MakeFolder();
        if (files_.FreeSpace(folder) < total)
            throw RunError(ErrorNumber::kDiskFull, folder);
        payload.Extract(sink);
        sink.Keep();
    }

    static Text TempFolder()
    {
        wchar_t folder[MAX_PATH + 1];
        const DWORD length = GetTempPathW(static_cast<DWORD>(std::size(folder)), folder);
        if (length == 0 || length >= std::size(folder))
            throw RunError(ErrorNumber::kPathNotFound);
        return RemoveLastBackslash(Narrow({folder, length}));
    }

    /// The text is an answer where the code is 0, else a failure.
    int EndWith(int code, const Text& text)
    {
        window_.reset();
        if (code == 0 || !command_.isSilent)
            TellUser(text, code != 0);
        return code;
    }

    int Fail(const RunError& error)
    {
        if (error.Number() == kRightsRefused)
            return static_cast<int>(ExitCode::Cancelled);
        if (error.Number() == ErrorNumber::kDiskFull)
            return EndWith(static_cast<int>(ExitCode::DiskFull),
                           texts_(SelfExtractMessages::kDiskFull, error.Path()));
        return EndWith(static_cast<int>(ExitCode::Failed),
                       texts_(SelfExtractMessages::kFailed, error.Path()));
    }

    HINSTANCE instance_;
    SelfExtractCommand command_;
    SelfTexts texts_;
    WinFiles files_;
    std::optional<UnpackWindow> window_;
};

} // namespace

} // namespace quillon

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR switches, int)
{
    quillon::StartProgram();
    return quillon::SelfExtractor(instance, quillon::Narrow(switches)).Run();
}
