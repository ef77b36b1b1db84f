#include "builder/runtime_files.h"

#include "builder/design_objects.h"
#include "builder/signing/sign_programs.h"
#include "formats/needed_helpers.h"
#include "helpers/windows_path.h"

#include <ranges>

namespace quillon {

namespace {

struct RuntimeFile {
    Text source;
    Text target; // in the destination
    Text name;   // as the status lines name it
    Text remark = {};
    bool isProgram = true; // which is signed where the project wants it
};

auto CopyOptionsOf(const Project& project)
{
    return std::views::transform(project.Files.rows,
                                 [](const FileListRow& row) { return row[CopyOptions]; });
}

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

// What goes from the tool's Release folder as it is.
Step CopyReleaseFile(CreateRun& run, const RuntimeProgram& program)
{
    return CopyIntoPackage(run, {ReleasePath(run, program.name), program.inPackage, program.name});
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
    if (!NeedsRegistryHelper(run.project, CopyOptionsOf(run.project)))
        return Step::GoOn;
    return CopyReleaseFile(run, RuntimePrograms::kRegistryHelper);
}

Step CopySecondRegistryHelper(CreateRun& run)
{
    if (!NeedsSecondRegistryHelper(CopyOptionsOf(run.project)))
        return Step::GoOn;
    return CopyReleaseFile(run, RuntimePrograms::kSecondRegistryHelper);
}

Step CopyUninstaller(CreateRun& run)
{
    if (!NeedsUninstaller(run.project))
        return Step::GoOn;
    return CopyReleaseFile(run, RuntimePrograms::kUninstaller);
}

Step CopyLicenseRtf(CreateRun& run)
{
    const Text& license = run.project.DialogBoxData.LicenseFilenameRtf;
    if (run.project.DialogBoxes.LicenseInfoRtfDlg != 1 || license.empty())
        return Step::GoOn;
    return CopyIntoPackage(run, {license, kLicenseRtfName, kLicenseRtfName, "", false});
}

} // namespace quillon
