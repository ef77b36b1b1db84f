#include "builder/selfextract/self_extract_checks.h"

#include "formats/row_safety.h"
#include "formats/setup_names.h"
#include "helpers/windows_path.h"

namespace quillon {

namespace {

Text NameOfProgram(const CreateRun& run)
{
    const Text& name = run.project.InstallOptionsInternet.SelfExtractFilename;
    return name.empty() ? kSelfExtractDefaultName : name;
}

} // namespace

Check CheckSelfExtractIcon(CreateRun& run)
{
    const Text& icon = run.project.InstallOptionsInternet.SelfExtractIconFilename;
    const bool isMissing = run.form.TargetMedia == Medium::Internet && !icon.empty() &&
                           !run.host.files.FileExists(icon);
    if (!isMissing)
        return Check::Passed;
    run.ask.Critical(
        "Ikon saknas",
        "Den externa ikonen som ska användas till den självuppackande installationen "
        "saknas eller så kan den ej öppnas! Kontrollera att ikonen verkligen existerar "
        "vid angiven katalog eller välj en ny.");
    return Check::Stopped;
}

Check CheckSelfExtractName(CreateRun& run)
{
    if (run.form.TargetMedia != Medium::Internet)
        return Check::Passed;
    const Text name = NameOfProgram(run);
    Text reason;
    if (EqualIgnoreCase(run.project.InstallOptions.SetupName, name))
        reason = "får ej vara detsamma som filnamnet på Setup-filen! Du måste välja ett annat "
                 "filnamn än '" +
                 name + "'!";
    else if (const PathFault fault = FaultOfName(name); fault != PathFault::None)
        reason = "fungerar inte ('" + name + "'): " + PathFaultText(fault) + ".";
    else if (IsNameOfPackageFile(name, run.project.Language.LanguageFile))
        reason = "fungerar inte ('" + name + "'): paketet har en annan fil med det namnet.";
    if (reason.empty())
        return Check::Passed;
    run.ask.Critical("Ogiltigt filnamn",
                     "Filnamnet på den självuppackande Internet-installationen " + reason +
                         " Tryck på knappen 'Inställningar' för att ändra.");
    return Check::Stopped;
}

Check CheckAccompanyingProgram(CreateRun& run)
{
    const Text& program = run.project.RunAppSelfX.ProgramFilename;
    const Text name = ExtractFilename(program);
    const bool isTaken = EqualIgnoreCase(name, NameOfProgram(run)) ||
                         EqualIgnoreCase(name, run.project.InstallOptions.SetupName) ||
                         IsNameOfPackageFile(name, run.project.Language.LanguageFile);
    if (run.form.TargetMedia != Medium::Internet || program.empty() || !isTaken)
        return Check::Passed;
    run.ask.Critical("Ogiltigt filnamn",
                     "Programmet '" + program +
                         "', som ska köras i den självuppackande installationen, har samma "
                         "filnamn som en av installationens egna filer! Döp om programmet och välj "
                         "det på nytt.");
    return Check::Stopped;
}

// Windows starts no program of 4 GiB. What the files become is not known before, so what they are
// counts.
Check CheckSizeOfProgram(CreateRun& run)
{
    constexpr std::uint64_t kMaxSize = 0xFFFFFFFF - 16 * 1024 * 1024;
    std::uint64_t size = 0;
    if (run.form.TargetMedia == Medium::Internet)
        for (const FileListRow& row : run.project.Files.rows)
            RunErrorNumber([&] {
                if (row.HasSource())
                    size += run.host.files.Status(row[Source]).size;
            });
    if (size <= kMaxSize)
        return Check::Passed;
    run.ask.Critical("För stor installation",
                     "Filerna är tillsammans större än 4 GB, och så stort kan ett självuppackande "
                     "installationsprogram inte vara! Välj ett annat medium.");
    return Check::Stopped;
}

} // namespace quillon
