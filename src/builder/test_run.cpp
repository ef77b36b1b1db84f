#include "builder/test_run.h"

#include "builder/create_checks.h"
#include "builder/file_list_file.h"
#include "builder/language_copy.h"
#include "builder/setup_info_file.h"
#include "formats/package_files.h"
#include "formats/runtime_programs.h"
#include "formats/test_switches.h"
#include "helpers/windows_path.h"
#include "platform/missing_program.h"
#include "platform/saved_file.h"
#include "platform/whole_file.h"

namespace quillon {

namespace {

constexpr const char* kTestTitle = "Kan ej testa";
constexpr const char* kPreviewTitle = "Kan ej förhandsgranska";
// The setup takes its files from folders: this medium has neither disks nor one file for all.
constexpr Medium kTestMedium = Medium::CompressedCd;

bool Fail(TestRun& run, const char* title, int error, const Text& what, const Text& advice = {})
{
    const Text text = "Fel #" + NumberText(error) + " inträffade när " + what + "!";
    run.ask.Critical(title, advice.empty() ? text : text + "\r\n\r\n" + advice);
    return false;
}

bool MakeFolder(TestRun& run, const char* title, const Text& folder)
{
    if (run.host.files.DirExists(folder) || run.host.files.DirCreate(folder))
        return true;
    run.failure = RunError(ErrorNumber::kPathNotFound, folder);
    return Fail(run, title, ErrorNumber::kPathNotFound, "katalogen '" + folder + "' skulle skapas");
}

bool WriteFileList(TestRun& run, const Project& project, const Text& folder)
{
    FileListOutcome outcome;
    const int error =
        WriteFileListFile(JoinPath(folder, kFileListName), project, run.host, outcome);
    run.FilesInList = outcome.FilesInList;
    if (error == ErrorNumber::kNone)
        return true;
    run.failure = outcome.failure;
    switch (error) {
    case ErrorNumber::kFileNotFound:
        run.ask.Critical(kTestTitle,
                         "Ett fel inträffade när fillista-filen FILELIST.INF skulle skapas! En "
                         "eller flera filer kan inte hittas på hårddisken. Sannolikt har de "
                         "flyttats eller fått nya filnamn.");
        return false;
    case ErrorNumber::kPathNotFound:
        run.ask.Critical(kTestTitle,
                         "Ett fel inträffade när fillista-filen FILELIST.INF skulle skapas! Kan ej "
                         "hitta angivna källsökvägar/mappar på hårddisken. Sannolikt har en eller "
                         "flera mappar fått nya namn eller flyttats.");
        return false;
    default:
        return Fail(run, kTestTitle, error, "fillista-filen FILELIST.INF skulle skapas");
    }
}

bool WriteSetupInfo(TestRun& run, Project& project, const Text& folder, SetupInfoMode mode)
{
    SetupInfoInput input{project, run.host, run.ask, run.options, run.surface, run.FilesInList};
    const int error = WriteSetupInfoFile(JoinPath(folder, kSetupInformationName), input, mode);
    if (error == ErrorNumber::kNone)
        return true;
    run.failure = input.failure;
    return Fail(run, mode == SetupInfoMode::Preview ? kPreviewTitle : kTestTitle, error,
                "informationsfilen QNSETUP.INF skulle skapas");
}

bool CopyLanguageFile(TestRun& run, const Text& folder)
{
    const Text& name = run.project.Language.LanguageFile;
    const auto copy = [&] { CopyLanguageTo(folder, name, run.options, run.host.files); };
    const int error = RunErrorNumber(copy, run.failure);
    return error == ErrorNumber::kNone ||
           Fail(run, kTestTitle, error, "språkfilen '" + name + "' skulle kopieras");
}

// The file of an earlier test run must not stay where this project names none.
bool CopyAgreement(TestRun& run, const Text& folder)
{
    if (run.project.DialogBoxes.LicenseInfoRtfDlg != 1)
        return true;
    const Text& source = run.project.DialogBoxData.LicenseFilenameRtf;
    const Text target = JoinPath(folder, kLicenseRtfName);
    FileSystem& files = run.host.files;
    const auto bring = [&] {
        if (!source.empty() && !EqualIgnoreCase(source, target))
            files.CopyContent(source, target);
        else if (source.empty() && files.FileExists(target))
            files.RemoveFile(target);
    };
    const int error = RunErrorNumber(bring, run.failure);
    return error == ErrorNumber::kNone ||
           Fail(run, kTestTitle, error, "licensavtalet '" + source + "' skulle kopieras");
}

bool HasContent(const FileSystem& files, const Text& path, const std::string& bytes)
{
    return files.FileExists(path) && files.Status(path).size == bytes.size() &&
           ReadWholeFile(files, path) == bytes;
}

/// The setup reads its files from its own folder, so it is copied to where they are written. A test
/// that is still open runs from the former copy, which nobody may write into.
void BringRuntime(TestRun& run, const Text& runtime)
{
    const Text ofTool =
        JoinPath(run.options.ToolFolder, "Test\\" + Text(RuntimePrograms::kTestSetup));
    if (EqualIgnoreCase(runtime, ofTool))
        return;
    FileSystem& files = run.host.files;
    const std::string bytes = ReadWholeFile(files, ofTool);
    if (!HasContent(files, runtime, bytes))
        SaveWholeFile(files, runtime, bytes);
}

bool StartRuntime(TestRun& run, const char* title, std::string_view switchName)
{
    Text advice;
    const auto start = [&] {
        const Text runtime = JoinPath(TestFolder(run.options), RuntimePrograms::kTestSetup);
        BringRuntime(run, runtime);
        try {
            run.host.machine.StartProgram(runtime, "/" + Text(switchName));
        } catch (const MissingProgram& missing) {
            advice = missing.Name() + " saknas på den här datorn. Programmet behövs för att visa "
                                      "installationen; installera det och försök igen.";
            throw;
        }
    };
    const int error = RunErrorNumber(start, run.failure);
    return error == ErrorNumber::kNone ||
           Fail(run, title, error, "32-bitars inladdaren 'QNS32X.EXE' skulle anropas", advice);
}

} // namespace

Text TestFolder(const CreateOptions& options)
{
    return JoinPath(options.OwnFolder.empty() ? options.ToolFolder : options.OwnFolder, "Test");
}

bool WriteTestFiles(TestRun& run, const Text& folder)
{
    if (ValidateProjectForAction(run.project, run.ask, "simulera") == Check::Stopped)
        return false;
    Project project = run.project;
    project.Media.TargetMedia = static_cast<Integer>(kTestMedium);
    return MakeFolder(run, kTestTitle, folder) && WriteFileList(run, project, folder) &&
           WriteSetupInfo(run, project, folder, SetupInfoMode::TestRun) &&
           CopyLanguageFile(run, folder) && CopyAgreement(run, folder);
}

bool StartSimulation(TestRun& run)
{
    return WriteTestFiles(run, TestFolder(run.options)) &&
           StartRuntime(run, kTestTitle, kTestSwitch);
}

bool StartDesignPreview(TestRun& run)
{
    const Text folder = TestFolder(run.options);
    Project project = run.project;
    return MakeFolder(run, kPreviewTitle, folder) &&
           WriteSetupInfo(run, project, folder, SetupInfoMode::Preview) &&
           StartRuntime(run, kPreviewTitle, kPreviewSwitch);
}

} // namespace quillon
