#include "builder/create.h"

#include "builder/autorun_file.h"
#include "builder/create_checks.h"
#include "builder/design_container.h"
#include "builder/file_container.h"
#include "builder/file_list_file.h"
#include "builder/language_copy.h"
#include "builder/one_by_one.h"
#include "builder/package_writing.h"
#include "builder/remove_quietly.h"
#include "builder/runtime_files.h"
#include "builder/selfextract/accompanying_program.h"
#include "builder/selfextract/files_aside.h"
#include "builder/selfextract/self_extracting_file.h"
#include "builder/setup_info_file.h"
#include "builder/signing/sign_programs.h"
#include "filelist/view/sort.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

// From this many rows on the uninstaller wants the list in the order of the folders.
constexpr std::size_t kRowsWorthSorting = 1000;

void EnableButtons(CreateForm& form, bool enabled)
{
    form.isCmdCreateEnabled = enabled;
    form.isCmdOptionsEnabled = enabled;
}

void Prepare(CreateRun& run)
{
    CreateForm& form = run.form;
    if (form.KeepCompressedFilesOneAndOne == 1)
        form.UseCompression = 0;
    run.project.Compression.KeepCompressedFilesOneAndOne = form.KeepCompressedFilesOneAndOne;
    run.project.Compression.SmallContainer = form.SmallContainer == 1 ? kOn : kOff;
    run.project.Compression.CompressFiles = form.UseCompression == 1 ? kOn : kOff;
    run.project.OperatingSystem.TargetOperatingSystem = form.cbOS;
    // Kept: it stays on in the project when the target is changed back.
    if (form.cbOS == 1)
        run.project.InstallOptions.DontInstallSysFilesOnNewWin = kOn;
    if (run.options.CreateZipLogFile != kOff)
        RemoveQuietly(run.host.files, run.host.machine.GetWindowsDir() + "\\DYNAZIP.LOG");
    run.CreateFailed = false;
    run.FloppiesUsed = 0;
}

Step Begin(CreateRun& run)
{
    EnableButtons(run.form, false);
    run.DestDir = RemoveLastBackslash(run.form.tDestinationDir);
    run.ask.ClearStatusLines();
    run.ask.AddStatusLine(Text("** Skapar 32 bitars installationsuppsättning för ") +
                          ChoiceOf(run.form.TargetMedia).word + " **");
    if (run.options.CreateZipLogFile != kOff)
        run.ask.AddStatusLine("- Loggning av komprimeringsprocessen är påkopplad");
    if (run.options.UseTempZipPath != kOff)
        run.ask.AddStatusLine("- Temporär komprimeringskatalog används");
    return Step::GoOn;
}

// The view keeps this order afterwards; a shorter list keeps the user's own.
Step SortLongList(CreateRun& run)
{
    const bool sorts = run.project.Files.rows.size() >= kRowsWorthSorting &&
                       run.project.InstallOptions.UninstallSupport != kOff;
    if (sorts) {
        run.ask.AddStatusLine("Sorterar fillista efter destinationskatalog");
        SortRowsBy(run.project.Files, Destination);
        run.isListSorted = true;
    }
    return Step::GoOn;
}

bool HoldsAnyFile(const FileSystem& files, const Text& folder)
{
    return std::ranges::any_of(files.List(folder),
                               [](const FolderEntry& entry) { return !entry.status.isFolder; });
}

// Everything in the folder goes into the self-extracting program.
Step ClearInternetFolder(CreateRun& run)
{
    if (run.form.TargetMedia != Medium::Internet)
        return Step::GoOn;
    MoveFilesAside(run);
    if (!HoldsAnyFile(run.host.files, run.InDestination("")))
        return Step::GoOn;
    const bool goOn = run.ask.YesNo(
        "Katalogen är ej tom",
        "Katalogen '" + run.DestDir +
            "', där den självuppackande installationsfilen ska skapas i är ej tom! Katalogen bör "
            "vara tom eftersom samtliga filer i denna katalog kommer att adderas till den "
            "självuppackande filen, varvid det finns risk att oönskade filer kommer ingå i "
            "installationsprogrammet! Vill du fortsätta?",
        Ask::Stops::OnNo);
    if (goOn)
        return Step::GoOn;
    run.ask.AddStatusLine("Avbryter!");
    run.isCancelled = true;
    return Step::Stop;
}

Step WriteAutorun(CreateRun& run)
{
    if (run.project.InstallOptions.CreateAutorunFile != kOff) {
        run.ask.AddStatusLine("Skapar AUTORUN.INF");
        WriteAutorunFile(run.host.files, run.InDestination(kAutorunName),
                         run.project.InstallOptions.SetupName);
        run.packageFiles.push_back(kAutorunName);
    }
    return Step::GoOn;
}

void DeleteFileListFile(CreateRun& run)
{
    RemoveQuietly(run.host.files, run.InDestination(kFileListName));
}

void DeleteSetupInfoFile(CreateRun& run)
{
    RemoveQuietly(run.host.files, run.InDestination(kSetupInformationName));
}

// A source that has gone ends the command, and an earlier run's QNSETUP.INF must not stay beside
// the broken list.
Step TellMissingSource(CreateRun& run, const Text& line, const Text& title, const Text& text)
{
    run.ask.AddStatusLine(line);
    run.ask.Critical(title, text);
    DeleteSetupInfoFile(run);
    return Step::Stop;
}

Step WriteFileList(CreateRun& run)
{
    run.project.Media.TargetMedia = Integer(run.form.TargetMedia);
    DeleteFileListFile(run);
    run.ask.AddStatusLine("Skapar FILELIST.INF");
    FileListOutcome outcome;
    const int error =
        WriteFileListFile(run.InDestination(kFileListName), run.project, run.host, outcome);
    run.FilesInList = outcome.FilesInList;
    run.packageFiles.push_back(kFileListName);
    run.failure = outcome.failure;
    switch (error) {
    case ErrorNumber::kNone:
        return Step::GoOn;
    case ErrorNumber::kFileNotFound:
        return TellMissingSource(
            run, "Fil saknas! Avbryter processen.", "Fil saknas",
            "En eller flera filer har försvunnit från källkatalogen sedan du lade in dessa i "
            "fillistan! Välj menyalternativet 'Lista'-'Uppdatera Lista' för att lokalisera de "
            "saknade filerna i fillistan.");
    case ErrorNumber::kPathNotFound:
        return TellMissingSource(
            run, "Källkatalog existerar inte! Avbryter processen.", "Källkatalog existerar inte",
            "En källkatalog till en fil i fillistan existerar inte på hårddisken längre! "
            "Antagligen har katalogen tagits bort eller så har den fått ett nytt namn sedan du "
            "lade in filen till fillistan. Välj menyalternativet 'Lista'-'Uppdatera Lista' för att "
            "lokalisera de berörda filerna.");
    default:
        run.ask.AddStatusLine("Fel #" + NumberText(error) +
                              " inträffade när FILELIST.INF skulle skapas.");
        return Step::Stop;
    }
}

// After the file list, because it says how many rows that has.
Step WriteSetupInfo(CreateRun& run)
{
    DeleteSetupInfoFile(run);
    run.ask.AddStatusLine("Skapar QNSETUP.INF");
    SetupInfoInput input{run.project, run.host, run.ask, run.options, run.surface, run.FilesInList};
    const int error =
        WriteSetupInfoFile(run.InDestination(kSetupInformationName), input, SetupInfoMode::Create);
    run.failure = input.failure;
    run.packageFiles.push_back(kSetupInformationName);
    if (error == ErrorNumber::kNone)
        return Step::GoOn;
    run.ask.AddStatusLine("Fel #" + NumberText(error) +
                          " inträffade när QNSETUP.INF skulle skapas.");
    return Step::Stop;
}

Step CopyLanguageFile(CreateRun& run)
{
    const Text& name = run.project.Language.LanguageFile;
    run.ask.AddStatusLine("Kopierar " + name);
    CopyLanguageTo(run.BuildFolder(), name, run.options, run.host.files);
    run.packageFiles.push_back(name);
    return Step::GoOn;
}

// The package that is packed is a whole one, with its manifest. One whose files could not be packed
// becomes no program.
Step BuildSelfExtractingPackage(CreateRun& run)
{
    CreateFileContainer(run, false);
    CopyAccompanyingProgram(run);
    (void)FinishPackage(run);
    if (run.CreateFailed || BuildSelfExtractingFile(run))
        return Step::GoOn;
    run.ask.AddStatusLine("Kan ej skapa " +
                          UpperCase(run.project.InstallOptionsInternet.SelfExtractFilename) + "!");
    return Step::Stop;
}

// The package of the Internet medium is inside its program by now.
Step FinishFolder(CreateRun& run)
{
    return run.form.TargetMedia == Medium::Internet ? Step::GoOn : FinishPackage(run);
}

Step PlaceProjectFiles(CreateRun& run)
{
    switch (run.form.TargetMedia) {
    case Medium::Floppy:
        CreateFileContainer(run, true);
        return Step::GoOn;
    case Medium::CompressedCd:
        if (run.form.KeepCompressedFilesOneAndOne == 0)
            CreateFileContainer(run, false);
        else
            CopyFilesOneByOne(run);
        return Step::GoOn;
    case Medium::Internet:
        return BuildSelfExtractingPackage(run);
    case Medium::CdTree: // The user lays its files out.
        break;
    }
    return Step::GoOn;
}

Step TellEnd(CreateRun& run)
{
    if (!run.CreateFailed && run.form.TargetMedia == Medium::Floppy)
        run.ask.AddStatusLine(
            "Antal skapade installationsdisketter: " + NumberText(run.FloppiesUsed) + " st");
    run.ask.AddStatusLine(run.CreateFailed ? "Processen avbruten!" : "Färdig!");
    return Step::GoOn;
}

constexpr Step (*kStepsInOrder[])(CreateRun&) = {Begin,
                                                 SortLongList,
                                                 ClearInternetFolder,
                                                 PrepareSigning,
                                                 BeginPackage,
                                                 CopySetupExe,
                                                 CopyRuntimeExe,
                                                 CopyUnzipLibrary,
                                                 CopyRegistryHelper,
                                                 CopySecondRegistryHelper,
                                                 CopyUninstaller,
                                                 CopyLicenseRtf,
                                                 WriteAutorun,
                                                 WriteFileList,
                                                 WriteSetupInfo,
                                                 CopyLanguageFile,
                                                 CreateDesignContainer,
                                                 PlaceProjectFiles,
                                                 FinishFolder,
                                                 TellEnd};

CreateResult RunPipeline(CreateRun& run)
{
    const bool wentThrough =
        std::ranges::all_of(kStepsInOrder, [&](auto step) { return step(run) == Step::GoOn; });
    if (!run.isCancelled)
        run.ask.Beep();
    EnableButtons(run.form, true);
    if (run.isCancelled)
        return CreateResult::Stopped;
    const bool isWhole = wentThrough && !run.CreateFailed && !run.isIncomplete;
    return isWhole ? CreateResult::Done : CreateResult::Failed;
}

} // namespace

CreateResult RunCreate(CreateRun& run)
{
    try {
        Prepare(run);
        if (RunChecks(run) == Check::Stopped)
            return CreateResult::Stopped;
        const CreateResult result = RunPipeline(run);
        LeavePackage(run);
        RestoreFilesAside(run);
        return result;
    } catch (const RunError& error) {
        // Kept: the buttons stay disabled until the form is opened again.
        run.failure = error;
        LeavePackage(run);
        RestoreFilesAside(run);
        run.ask.AddStatusLine("Kan ej skapa!");
        run.ask.Critical("Fel", "Fel! Kan ej skriva till destinationsenheten!");
        return CreateResult::Failed;
    }
}

} // namespace quillon
