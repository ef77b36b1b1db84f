#include "builder/runtime_files.h"

#include "builder/design_objects.h"
#include "builder/signing/sign_programs.h"
#include "formats/copy_letters.h"
#include "formats/runtime_programs.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

struct RuntimeFile {
    Text source;
    Text target; // in the destination
    Text name;   // as the status lines tell it
    Text remark = {};
    bool isProgram = true; // which is signed where the project wants it
};

// What goes from the tool's Release folder as it is, under which name, and when.
struct ReleaseFile {
    RuntimeProgram program;
    bool (*isNeeded)(const Project&);
};

// Scripts run in the helper that registers files.
bool NeedsRegistryHelper(const Project& project)
{
    return std::ranges::any_of(project.Files.rows,
                               [](const FileListRow& row) {
                                   return HasOption(row[CopyOptions], CopyLetter::kRegister);
                               }) ||
           !project.Lists.RunScriptBefore.empty() || !project.Lists.RunScriptAfter.empty();
}

// A file that is in use can't be registered before the next start of Windows, which is the second
// helper's work.
bool NeedsSecondRegistryHelper(const Project& project)
{
    return std::ranges::any_of(project.Files.rows, [](const FileListRow& row) {
        return HasOption(row[CopyOptions], CopyLetter::kRegister) &&
               HasOption(row[CopyOptions], CopyLetter::kActiveFile);
    });
}

bool NeedsUninstaller(const Project& project)
{
    return project.InstallOptions.UninstallSupport != kOff;
}

constexpr ReleaseFile kRegistryHelper = {RuntimePrograms::kRegistryHelper, NeedsRegistryHelper};
constexpr ReleaseFile kSecondRegistryHelper = {RuntimePrograms::kSecondRegistryHelper,
                                               NeedsSecondRegistryHelper};
constexpr ReleaseFile kUninstaller = {RuntimePrograms::kUninstaller, NeedsUninstaller};

Text ReleasePath(const CreateRun& run, const Text& name)
{
    return run.options.ToolFolder + "\\Release\\" + name;
}

Step CopyIntoPackage(CreateRun& run, const RuntimeFile& file)
{
    run.ask.AddStatusLine("Kopierar " + file.name + file.remark);
    const Text target = run.InDestination(file.target);
    Step step = Step::GoOn;
    const auto copy = [&] {
        if (file.isProgram)
            step = CopyProgramSigned(run, file.source, target, file.name);
        else
            run.host.files.CopyContent(file.source, target);
    };
    if (RunErrorNumber(copy, run.failure) == ErrorNumber::kNone) {
        if (step == Step::GoOn)
            run.packageFiles.push_back(file.target);
        return step;
    }
    run.ask.AddStatusLine("Fel! Kan ej kopiera " + file.name + "!");
    return Step::Stop;
}

Step CopyReleaseFile(CreateRun& run, const ReleaseFile& file)
{
    if (!file.isNeeded(run.project))
        return Step::GoOn;
    return CopyIntoPackage(
        run, {ReleasePath(run, file.program.name), file.program.inPackage, file.program.name});
}

} // namespace

Step CopySetupExe(CreateRun& run)
{
    const Text& name = run.project.InstallOptions.SetupName;
    const Step step =
        CopyIntoPackage(run, {ReleasePath(run, RuntimePrograms::kStarter.name), name, name});
    if (step == Step::GoOn && run.options.UpdateSetupExeDateTime != kOff)
        SetFileDateTime_Now(run.host, run.InDestination(name));
    return step;
}

Step CopyRuntimeExe(CreateRun& run)
{
    const Text name = RuntimePrograms::kSetup.name;
    const bool full = UsesJpegPictures(run.project);
    return CopyIntoPackage(run, {ReleasePath(run, (full ? "Full32\\" : "Small32\\") + name),
                                 RuntimePrograms::kSetup.inPackage, name,
                                 full ? "  (Full Version)" : "  (Small Version)"});
}

Step CopyUnzipLibrary(CreateRun& run)
{
    // The one that reads solid containers too is larger, and of use to no other package.
    const RuntimeProgram& library = RuntimePrograms::kUnzipLibrary;
    const Text folder = MakesSmallContainer(run.form) ? "Solid\\" : "";
    return CopyIntoPackage(
        run, {ReleasePath(run, folder + library.name), library.inPackage, library.name});
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
    return CopyIntoPackage(run, {license, kLicenseRtfName, kLicenseRtfName, "", false});
}

} // namespace quillon
