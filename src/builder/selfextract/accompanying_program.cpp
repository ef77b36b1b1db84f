#include "builder/selfextract/accompanying_program.h"

#include "builder/remove_quietly.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

bool LiesInPackageFolder(const CreateRun& run, const Text& program)
{
    return EqualIgnoreCase(ResolvePath(program),
                           ResolvePath(run.InDestination(ExtractFilename(program))));
}

} // namespace

void CopyAccompanyingProgram(CreateRun& run)
{
    const Text& program = run.project.RunAppSelfX.ProgramFilename;
    if (program.empty())
        return;
    const Text name = ExtractFilename(program);
    run.ask.AddStatusLine("Kopierar " + UpperCase(name));
    FileSystem& files = run.host.files;
    const bool isThere =
        LiesInPackageFolder(run, program) && files.FileExists(run.InDestination(name));
    const auto copy = [&] { files.CopyContent(program, run.InDestination(name)); };
    if (isThere || RunErrorNumber(copy) == ErrorNumber::kNone)
        run.packageFiles.push_back(name);
}

void RemoveCopyOfAccompanyingProgram(CreateRun& run)
{
    const Text& program = run.project.RunAppSelfX.ProgramFilename;
    const Text name = ExtractFilename(program);
    const bool isInPackage = std::ranges::find(run.packageFiles, name) != run.packageFiles.end();
    if (!program.empty() && isInPackage && !LiesInPackageFolder(run, program))
        RemoveQuietly(run.host.files, run.InDestination(name));
}

} // namespace quillon
