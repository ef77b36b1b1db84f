#include "builder/create_checks.h"

#include "builder/file_container.h"
#include "builder/row_checks.h"
#include "builder/selfextract/self_extract_checks.h"
#include "filelist/adding/redist_folder.h"
#include "filelist/adding/system_files.h"
#include "formats/icon_marker.h"
#include "formats/runtime_programs.h"
#include "formats/setup_names.h"
#include "helpers/windows_path.h"

#include <algorithm>
#include <string_view>

namespace quillon {

namespace {

constexpr std::string_view kFilesForSystemFolder[] = {"OLEPRO32.DLL", "OLEAUT32.DLL", "MFC42.DLL",
                                                      "MSVCRT.DLL", "COMCAT.DLL"};
constexpr std::string_view kOneSystemOnly = "SHDOCVW.DLL";

// A path no longer than this is the root of a drive, for which no question is asked.
constexpr std::size_t kMaxDriveRootLength = 3;

template <class Names>
bool Holds(const Names& names, const Text& name)
{
    return std::ranges::find(names, std::string_view(name)) != std::end(names);
}

bool IsCd(const CreateForm& form)
{
    return form.TargetMedia == Medium::CompressedCd || form.TargetMedia == Medium::CdTree;
}

Check CheckProject(CreateRun& run)
{
    return ValidateProjectForAction(run.project, run.ask, "skapa");
}

Check CheckDestinationGiven(CreateRun& run)
{
    if (!run.form.tDestinationDir.empty())
        return Check::Passed;
    run.ask.Inform("Destinationskatalog saknas",
                   "Du måste ange en destinationskatalog dit dina installationsfiler ska kopieras "
                   "först! Du kan trycka på knappen 'Bläddra' i dialogrutan för att leta efter en "
                   "befintlig katalog.");
    return Check::Stopped;
}

Check CheckOneSystemFile(CreateRun& run)
{
    const bool cancel = run.ask.YesNo(
        "Olämplig systemfil",
        "Du har lagt in filen 'SHDOCVW.DLL' i fillistan. Denna fil är normalt systemspecifik och "
        "bör inte distribueras till andra operativsystem. Vill du avbryta?",
        Ask::Stops::OnYes);
    return cancel ? Check::Stopped : Check::Passed;
}

bool IsTakenFromSystemFolder(const CreateRun& run, const FileListRow& row)
{
    return UpperCase(ExtractDirectory(row[Source])) == UpperCase(run.host.machine.GetSystemDir());
}

// Kept: whether the other file exists is not asked here.
Check CheckProtectedFile(CreateRun& run, const Text& redistFolder, FileListRow& row)
{
    if (!IsTakenFromSystemFolder(run, row))
        return Check::Passed;
    if (!redistFolder.empty()) {
        row[Source] = LowerCase(redistFolder + "\\" + row[Filename]);
        run.state.ProjectIsDirty = kOn;
        return Check::Passed;
    }
    const bool cancel = run.ask.YesNo(
        "Olämplig systemfil",
        "Du har adderat filen '" + row[Filename] +
            "' från Windows systemmapp till fillistan. Denna fil är specifik för Windows XP och "
            "bör inte distribueras till andra operativsystem. Vill du avbryta?",
        Ask::Stops::OnYes);
    return cancel ? Check::Stopped : Check::Passed;
}

bool HasIcon(const FileListRow& row)
{
    return HasIconMarker(row[IconMarker]);
}

Check CheckNotOntoCd(CreateRun& run)
{
    if (!IsCd(run.form))
        return Check::Passed;
    const Text root = FirstCharacters(run.form.tDestinationDir, kMaxDriveRootLength);
    if (run.host.files.DriveType(root) != DriveKind::Cd)
        return Check::Passed;
    run.ask.Critical("Fel",
                     "Du kan ej skapa direkt på en CD eller DVD-skiva från Quillon. Du måste först "
                     "skapa på hårddisken och sen bränna installationen med ett CD eller "
                     "DVD-brännarprogram.");
    return Check::Stopped;
}

// A name that leads out of the package's folder would overwrite whatever is there.
Check CheckSetupNames(CreateRun& run)
{
    const Project& project = run.project;
    const Text starter =
        SetupNameFaultText(project.InstallOptions.SetupName, project.Language.LanguageFile);
    const Text group = ProgramGroupFaultText(project.ProgramGroup.ProgramGroup);
    if (starter.empty() && group.empty())
        return Check::Passed;
    if (!starter.empty())
        run.ask.Critical("Ogiltigt filnamn", starter);
    else
        run.ask.Critical("Ogiltig programgrupp", group);
    return Check::Stopped;
}

Check CheckReservedFilenames(CreateRun& run)
{
    const bool besideTheRuntime = run.form.TargetMedia == Medium::CompressedCd &&
                                  run.form.KeepCompressedFilesOneAndOne != 0 &&
                                  run.options.PlaceCompressedFilesInFolderSetupFiles == kOff;
    const Text name = besideTheRuntime ? FindReservedFilename(run.project) : Text();
    if (name.empty())
        return Check::Passed;
    run.ask.Critical(
        "Reserverat filnamn hittades",
        "Filen '" + name +
            "' som ingår i fillistan har ett filnamn som är reserverat av Quillons egna "
            "installationsfiler. För att denna fil ska kunna ingå i fillistan måste de filer som "
            "ska installeras placeras i underkatalogen '\\SetupFiles'. Du kan ange detta i "
            "dialogrutan 'Alternativ'. Alternativt kan du döpa om filen till ett annat filnamn.");
    return Check::Stopped;
}

// A solid container is not encrypted, and files behind a password must not lie open.
Check CheckSmallContainer(CreateRun& run)
{
    if (!MakesSmallContainer(run.form) || ContainerPassword(run.project).empty())
        return Check::Passed;
    run.ask.Critical(
        "Felaktig kombination",
        "Kan ej skapa! Du har valt 'Minsta möjliga storlek' i dialogrutan 'Komprimering' och ett "
        "lösenord för installationen. En sådan FILEDATA.DAT kan ej krypteras. Ta bort lösenordet "
        "eller välj den vanliga komprimeringen.");
    return Check::Stopped;
}

Check CheckFirstFloppy(CreateRun& run)
{
    return run.form.TargetMedia == Medium::Floppy ? AskForFloppy(run.ask, 1) : Check::Passed;
}

Check CheckDestinationExists(CreateRun& run)
{
    const Text& folder = run.form.tDestinationDir;
    if (CharacterCount(folder) <= kMaxDriveRootLength || run.host.files.DirExists(folder))
        return Check::Passed;
    const bool create = run.ask.YesNo("Katalogen existerar inte",
                                      "Katalogen '" + folder +
                                          "' existerar inte på hårddisken! Vill du skapa den nu?",
                                      Ask::Stops::OnNo);
    if (!create)
        return Check::Stopped;
    if (run.host.files.DirCreate(folder))
        return Check::Passed;
    run.ask.Inform("Kan ej skapa katalog", "Kan ej skapa katalogen " + folder + "!");
    return Check::Stopped;
}

// The first refusal ends the command, so the order decides which box the user sees.
constexpr Check (*kChecksInOrder[])(CreateRun&) = {CheckProject,
                                                   CheckSystemFileDestinations,
                                                   CheckDestinationGiven,
                                                   CheckSystemSpecificFiles,
                                                   CheckUninstallIconCombination,
                                                   CheckNotOntoCd,
                                                   CheckSelfExtractIcon,
                                                   CheckSelfExtractName,
                                                   CheckAccompanyingProgram,
                                                   CheckSizeOfProgram,
                                                   CheckReservedFilenames,
                                                   CheckRows,
                                                   CheckUnknownVariables,
                                                   CheckOneByOneNames,
                                                   CheckUninstallerNames,
                                                   CheckIconTitles,
                                                   CheckDesignNames,
                                                   CheckNamesInTree,
                                                   CheckSetupNames,
                                                   CheckSmallContainer,
                                                   CheckFirstFloppy,
                                                   CheckDestinationExists};

} // namespace

Check ValidateProjectForAction(const Project& project, Ask& ask, const Text& verb)
{
    Text reason;
    if (project.Files.rows.empty())
        reason = "Det finns inga filer i fillistan!";
    else if (project.InstallDirectories.DestinationDirectory.empty())
        reason = "Filerna i fillistan saknar en huvudkatalog!";
    else if (project.ProjectName.ProjectName.empty())
        reason = "Du måste ange ett projektnamn först!";
    if (reason.empty())
        return Check::Passed;
    ask.Inform("Fel", "Kan ej " + verb + "! " + reason);
    return Check::Stopped;
}

Check CheckSystemFileDestinations(CreateRun& run)
{
    for (const FileListRow& row : run.project.Files.rows) {
        const bool isElsewhere =
            Holds(kFilesForSystemFolder, UpperCase(row[Filename])) && row[Destination] != "%SYSDIR";
        if (!isElsewhere)
            continue;
        const bool goOn = run.ask.YesNo(
            "Olämplig destinationskatalog",
            "Du har angett en annan katalog än systemkatalogen (%SYSDIR) för systemfilen '" +
                row[Filename] +
                "'. Systemfiler bör alltid kopieras till Windows systemkatalog, annars kan det "
                "medföra problem för andra program eller ditt program så småningom. Vill du "
                "fortsätta att skapa ändå?",
            Ask::Stops::OnNo);
        if (!goOn)
            return Check::Stopped;
    }
    return Check::Passed;
}

Check CheckSystemSpecificFiles(CreateRun& run)
{
    const bool isWindowsXP = run.host.machine.IsWindowsXP();
    const Text redistFolder = isWindowsXP ? RedistFolder(run.host.machine) : Text();
    for (FileListRow& row : run.project.Files.rows) {
        Check check = Check::Passed;
        if (UpperCase(row[Filename]) == kOneSystemOnly)
            check = CheckOneSystemFile(run);
        else if (isWindowsXP && IsProtectedOnWindowsXP(row[Filename]))
            check = CheckProtectedFile(run, redistFolder, row);
        if (check == Check::Stopped)
            return check;
    }
    return Check::Passed;
}

Check CheckUninstallIconCombination(CreateRun& run)
{
    const section::InstallOptions& options = run.project.InstallOptions;
    const auto& rows = run.project.Files.rows;
    const bool wantsUninstallIcon =
        options.UninstallSupport != kOff && options.CreateUninstallIcon != kOff;
    if (!wantsUninstallIcon || rows.empty() || std::ranges::any_of(rows, HasIcon))
        return Check::Passed;
    run.ask.Critical(
        "Felaktig kombination",
        "Kan ej skapa! Du har valt att en avinstallations-ikon ska skapas, men du saknar ikoner "
        "för "
        "andra filer i fillistan! Använder du en avinstallations-ikon måste minst en fil i "
        "fillistan ha en ikon. Att skapa en programgrupp med endast en avinstallations-ikon är "
        "inte "
        "tillåtet. Du kan dock ha avinstallationsmöjligheter på en grupp filer utan ikoner, ifall "
        "du endast kryssar för 'Stöd för avinstallation' i gruppen 'Avinstallation' i dialogrutan "
        "'Inställningar för installationsprogram'.");
    return Check::Stopped;
}

Text FindReservedFilename(const Project& project)
{
    // Kept: the two names of the project's own choice are compared as they are, so only those in
    // capitals can match.
    const std::string_view reserved[] = {project.InstallOptions.SetupName,
                                         RuntimePrograms::kSetup.name,
                                         RuntimePrograms::kSetup.inPackage,
                                         kSetupInformationName,
                                         kFileListName,
                                         project.Language.LanguageFile,
                                         RuntimePrograms::kUnzipLibrary.name,
                                         kFileContainerName,
                                         kDesignContainerName,
                                         RuntimePrograms::kSecondRegistryHelper.name,
                                         RuntimePrograms::kSecondRegistryHelper.inPackage,
                                         RuntimePrograms::kRegistryHelper.name,
                                         RuntimePrograms::kRegistryHelper.inPackage,
                                         RuntimePrograms::kUninstaller.name,
                                         RuntimePrograms::kUninstaller.inPackage};
    for (const FileListRow& row : project.Files.rows)
        if (Holds(reserved, UpperCase(row[Filename])))
            return row[Filename];
    return {};
}

Check AskForFloppy(Ask& ask, int number)
{
    return ask.OkCancel("Diskett", "Stoppa in diskett nr " + NumberText(number) + "!")
               ? Check::Passed
               : Check::Stopped;
}

Check RunChecks(CreateRun& run)
{
    for (const auto& check : kChecksInOrder)
        if (check(run) == Check::Stopped)
            return Check::Stopped;
    return Check::Passed;
}

} // namespace quillon
