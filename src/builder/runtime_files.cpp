#include "builder/runtime_files.h"

#include "builder/design_objects.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

struct RuntimeFile {
    Text source;
    Text target; // in the destination
    Text name;   // as the status lines tell it
    Text remark = {};
};

// What goes from the tool's Release folder as it is, under which name, and when.
struct ReleaseFile {
    const char* source;
    const char* target;
    bool (*isNeeded)(const Project&);
};

bool IsAlwaysNeeded(const Project&)
{
    return true;
}

bool HasOption(const FileListRow& row, const char* letter)
{
    return ContainsText(row[CopyOptions], letter);
}

// Scripts run in the helper that registers files.
bool NeedsRegistryHelper(const Project& project)
{
    return std::ranges::any_of(project.Files.rows,
                               [](const FileListRow& row) { return HasOption(row, "R"); }) ||
           !project.Lists.RunScriptBefore.empty() || !project.Lists.RunScriptAfter.empty();
}

// A file that is in use can't be registered before the next start of Windows, which is the second
// helper's work.
bool NeedsSecondRegistryHelper(const Project& project)
{
    return std::ranges::any_of(project.Files.rows, [](const FileListRow& row) {
        return HasOption(row, "R") && HasOption(row, "A");
    });
}

bool NeedsUninstaller(const Project& project)
{
    return project.InstallOptions.UninstallSupport != kOff;
}

// clang-format off
constexpr ReleaseFile kUnzipLibrary          = {"DUNZIP32.DLL", kUnzipLibraryName,         IsAlwaysNeeded};
constexpr ReleaseFile kRegistryHelper        = {"QNREG32.EXE",  kRegistryHelperName,       NeedsRegistryHelper};
constexpr ReleaseFile kSecondRegistryHelper  = {"QNXREG2.EXE",  kSecondRegistryHelperName, NeedsSecondRegistryHelper};
constexpr ReleaseFile kUninstaller           = {"QNXUNIN.EXE",  kUninstallerName,          NeedsUninstaller};
// clang-format on

Text ReleasePath(const CreateRun& run, const Text& name)
{
    return run.options.ToolFolder + "\\Release\\" + name;
}

Step CopyIntoPackage(CreateRun& run, const RuntimeFile& file)
{
    run.ask.AddStatusLine("Kopierar " + file.name + file.remark);
    const auto copy = [&] {
        run.host.files.CopyContent(file.source, run.InDestination(file.target));
    };
    if (RunErrorNumber(copy, run.failure) == ErrorNumber::kNone) {
        run.packageFiles.push_back(file.target);
        return Step::GoOn;
    }
    run.ask.AddStatusLine("Fel! Kan ej kopiera " + file.name + "!");
    return Step::Stop;
}

Step CopyReleaseFile(CreateRun& run, const ReleaseFile& file)
{
    if (!file.isNeeded(run.project))
        return Step::GoOn;
    return CopyIntoPackage(run, {ReleasePath(run, file.source), file.target, file.source});
}

} // namespace

Step CopySetupExe(CreateRun& run)
{
    const Text& name = run.project.InstallOptions.SetupName;
    const Step step = CopyIntoPackage(run, {ReleasePath(run, "SETUP32.EXE"), name, name});
    if (step == Step::GoOn && run.options.UpdateSetupExeDateTime != kOff)
        SetFileDateTime_Now(run.host, run.InDestination(name));
    return step;
}

Step CopyRuntimeExe(CreateRun& run)
{
    const Text name = "QNS32X.EXE";
    const bool full = UsesJpegPictures(run.project);
    return CopyIntoPackage(run,
                           {ReleasePath(run, (full ? "Full32\\" : "Small32\\") + name),
                            kRuntimeName, name, full ? "  (Full Version)" : "  (Small Version)"});
}

Step CopyUnzipLibrary(CreateRun& run)
{
    return CopyReleaseFile(run, kUnzipLibrary);
}

Step CopyRegistryHelper(CreateRun& run)
{
    return CopyReleaseFile(run, kRegistryHelper);
}

Step CopySecondRegistryHelper(CreateRun& run)
{
    return CopyReleaseFile(run, kSecondRegistryHelper);
}

Step CopyUninstaller(CreateRun& run)
{
    return CopyReleaseFile(run, kUninstaller);
}

Step CopyLicenseRtf(CreateRun& run)
{
    const Text& license = run.project.DialogBoxData.LicenseFilenameRtf;
    if (run.project.DialogBoxes.LicenseInfoRtfDlg != 1 || license.empty())
        return Step::GoOn;
    return CopyIntoPackage(run, {license, kLicenseRtfName, kLicenseRtfName});
}

} // namespace quillon
