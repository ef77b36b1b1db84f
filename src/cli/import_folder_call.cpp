// quillonc import-folder: the output folder of any build.
#include "cli/calls.h"
#include "cli/import_run.h"
#include "helpers/windows_path.h"
#include "importers/import_folder.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace quillon::cli {

namespace {

const char* MachineWord(ProgramMachine machine)
{
    switch (machine) {
    case ProgramMachine::X86:
        return "x86";
    case ProgramMachine::X64:
        return "x64";
    case ProgramMachine::Arm64:
        return "arm64";
    default:
        return "other";
    }
}

const char* KindWord(DotNetNeed::Kind kind)
{
    switch (kind) {
    case DotNetNeed::Kind::Framework:
        return "framework";
    case DotNetNeed::Kind::Core:
        return "core";
    case DotNetNeed::Kind::Contained:
        return "contained";
    default:
        return "none";
    }
}

// The program that the call names, by its name or its path below the folder; else the likeliest.
std::size_t ProgramPlace(const CallContext& context, const ProgramFolder& folder)
{
    const auto wanted = context.arguments.Value("--exe");
    if (!wanted)
        return folder.programs.front();
    const Text name = ReplaceAll(*wanted, "/", "\\");
    for (const std::size_t place : folder.programs)
        if (EqualIgnoreCase(folder.files[place].RelativePath(), name) ||
            EqualIgnoreCase(folder.files[place].entry.name, name))
            return place;
    throw CallFailure{"Katalogen har inget program '" + *wanted + "'. Inget är sparat.",
                      Exit::Stopped};
}

Json FindingsJson(const FolderFile& program, const ProgramFindings& findings)
{
    Json missing = Json::array();
    for (const MissingLibrary& library : findings.missing)
        missing.push_back({{"name", library.name},
                           {"neededBy", library.neededBy},
                           {"delayed", library.isDelayed}});
    Json mixed = Json::array();
    for (const MixedMachine& file : findings.mixed)
        mixed.push_back({{"file", file.file}, {"machine", MachineWord(file.machine)}});
    const DotNetNeed& need = findings.dotNet;
    return {
        {"program", program.RelativePath()},
        {"machine", findings.isForAnyMachine ? "any" : MachineWord(findings.machine)},
        {"onlyFor", findings.onlyFor ? Json(MachineWord(findings.onlyFor->machine)) : Json()},
        {"version", findings.version.ProductVersion},
        {"dotNet", {{"kind", KindWord(need.kind)}, {"name", need.name}, {"version", need.version}}},
        {"missing", std::move(missing)},
        {"mixed", std::move(mixed)}};
}

Text MixedText(const ProgramFindings& findings)
{
    const MixedMachine& first = findings.mixed.front();
    const Text text = "'" + first.file + "' är för " + MachineText(first.machine) + ", men ";
    if (!findings.isForAnyMachine)
        return text + "programmet är för " + MachineText(findings.machine) + ".";
    const auto other = std::ranges::find_if(findings.mixed, [&](const MixedMachine& library) {
        return library.machine != first.machine;
    });
    return text + "'" + other->file + "' är för " + MachineText(other->machine) + ".";
}

void RequireMatchingLibraries(const ProgramFindings& findings)
{
    for (const MissingLibrary& library : findings.missing)
        if (!library.isDelayed)
            throw CallFailure{"Biblioteket '" + library.name + "' saknas; det behövs av '" +
                                  library.neededBy.front() + "'. Inget är sparat.",
                              Exit::Stopped};
    if (!findings.mixed.empty())
        throw CallFailure{MixedText(findings) + " Inget är sparat.", Exit::Stopped};
}

} // namespace

Exit ImportFolder(const CallContext& context)
{
    const Text path = context.PathOperand(1);
    const FileSystem& files = context.host.files;
    if (!files.DirExists(path))
        throw CallFailure{"Katalogen '" + path + "' finns inte. Inget är sparat.",
                          Exit::Unreadable};
    ImportRun run(context);
    const ProgramFolder folder = ReadProgramFolder(files, path, [](const Text&) { return true; });
    if (!folder.damage.empty())
        throw CallFailure{folder.damage + " Inget är sparat.", Exit::Unreadable};
    if (!HasProgram(folder, run.edit.ask))
        throw CallFailure{"Katalogen '" + path + "' har inget program. Inget är sparat.",
                          Exit::Stopped};
    const std::size_t place = ProgramPlace(context, folder);
    const FolderFile& program = folder.files[place];
    const ProgramFindings findings = FindingsOf(files, folder, program, run.Data());
    if (context.arguments.Has("--strict"))
        RequireMatchingLibraries(findings);
    Text lines = "Program: " + program.RelativePath() + "\n";
    for (const Text& line : FindingsText(findings))
        lines += line + "\n";
    const ImportResult result =
        ImportProgramFolder(run.Work(), folder, place, findings,
                            {.cVersionData = !context.arguments.Has("--keep-version"),
                             .cSkipBuildFiles = !context.arguments.Has("--with-build-files"),
                             .cTestNETFramework = !context.arguments.Has("--no-net-test"),
                             .cAddIcon = context.arguments.Has("--icon")});
    return run.Finish(result, lines, FindingsJson(program, findings));
}

} // namespace quillon::cli
