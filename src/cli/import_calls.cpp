// quillonc import-vb5, import-vb6 and import-vbnet: the choices of the dialogs as switches.
#include "cli/calls.h"
#include "cli/import_run.h"
#include "importers/import_vb5.h"
#include "importers/import_vb6.h"
#include "importers/import_vbnet.h"

namespace quillon::cli {

namespace {

Text RequireFile(const CallContext& context, const char* option)
{
    const Text path = context.Path(context.arguments.Required(option));
    RequireReadableFile(context.host.files, path);
    return path;
}

// Without the switch, the folder that this machine has registered.
Text VbFolder(const CallContext& context, const Text& registered)
{
    const auto folder = context.arguments.Value("--vb-folder");
    const Text path = folder ? context.Path(*folder) : registered;
    if (path.empty())
        throw CallFailure{"Registry anger ingen katalog för Visual Basic. Ange den med "
                          "--vb-folder, eller låt QUILLON_REGISTRY namnge en .reg-fil från den "
                          "dator där Visual Basic är installerat. Inget är sparat.",
                          Exit::Stopped};
    if (!context.host.files.DirExists(path))
        throw CallFailure{"Katalogen '" + path +
                              "' för Visual Basic finns inte. Ange den med --vb-folder. Inget är "
                              "sparat.",
                          Exit::Stopped};
    return path;
}

// A data control's box: the scan ticks it, a switch overrules the scan.
void Overrule(const CallContext& context, const char* on, const char* off, bool& isTicked)
{
    if (context.arguments.Has(on) && context.arguments.Has(off))
        throw UsageError{Text("Växlarna ") + on + " och " + off + " utesluter varandra."};
    isTicked = (isTicked || context.arguments.Has(on)) && !context.arguments.Has(off);
}

void SetPackageOptions(const CallContext& context, section::Databases& databases)
{
    if (context.arguments.Has("--mda-visible"))
        databases.MDAHiddenInstall = kOff;
    if (context.arguments.Has("--mda-ask"))
        databases.MDAAskUser = kOn;
}

void SetNetTest(const CallContext& context, section::NET& net)
{
    const auto version = context.arguments.Value("--net");
    const bool stops = context.arguments.Has("--net-stop");
    if (stops && !version)
        throw UsageError{"Växeln --net-stop hör ihop med --net."};
    if (!version)
        return;
    net.NET_TestIfInstalled = kOn;
    net.NET_ver10 = *version == "1.0" ? kOn : kOff;
    net.NET_ver11 = *version == "1.1" ? kOn : kOff;
    net.NET_WarnIfNoNET = stops ? kOff : kOn;
    net.NET_StopIfNoNET = stops ? kOn : kOff;
}

} // namespace

Exit ImportVb6(const CallContext& context)
{
    Vb6Choices choices{.sVBPfile = RequireFile(context, "--vbp"),
                       .sEXEfile = RequireFile(context, "--exe"),
                       .tVBDirectory = VbFolder(context, FindVb6Directory(context.host.machine)),
                       .cImportDAO35 = context.arguments.Has("--dao35"),
                       .cImportDAO36 = context.arguments.Has("--dao36"),
                       .cInstallMDA = context.arguments.Has("--mda"),
                       .cImportActiveXSysFiles = context.arguments.Has("--mfc"),
                       .cUseDepFile = context.arguments.Has("--no-dep") ? 0 : 1,
                       .cAddIcon = context.arguments.Has("--icon"),
                       .MDAQuestionAsked = true}; // the switch is the answer
    ImportRun run(context);
    const ImportData data = run.Data();
    ScanVb6Project(context.host, run.edit.ask, data, choices);
    Overrule(context, "--ado", "--no-ado", choices.cImportADO);
    Overrule(context, "--rdo", "--no-rdo", choices.cImportRDO);
    SetPackageOptions(context, run.edit.session.project.Databases);
    return run.Finish(ImportVb6Project(run.Work(), data, choices));
}

Exit ImportVb5(const CallContext& context)
{
    const Vb5Choices choices{.sVBPfile = RequireFile(context, "--vbp"),
                             .sEXEfile = RequireFile(context, "--exe"),
                             .tVBDirectory =
                                 VbFolder(context, FindVb5Directory(context.host.machine)),
                             .cImportDAO35 = context.arguments.Has("--dao35"),
                             .cImportActiveXSysFiles = context.arguments.Has("--mfc"),
                             .cAddIcon = context.arguments.Has("--icon")};
    ImportRun run(context);
    return run.Finish(ImportVb5Project(run.Work(), choices));
}

Exit ImportVbNet(const CallContext& context)
{
    const VbNetChoices choices{.sVBPfile = RequireFile(context, "--vbp"),
                               .sEXEfile = RequireFile(context, "--exe"),
                               .cUseDepFile = context.arguments.Has("--no-dep") ? 0 : 1};
    ImportRun run(context);
    SetNetTest(context, run.edit.session.project.NET);
    return run.Finish(ImportVbNetProject(run.Work(), run.Data(), choices));
}

} // namespace quillon::cli
