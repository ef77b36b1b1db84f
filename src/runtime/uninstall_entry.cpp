#include "runtime/uninstall_entry.h"

#include "runtime/planned_shortcuts.h"

namespace quillon {

namespace {

// "20040301"
Text CompactDate(const LocalTime& time)
{
    return ReplaceAll(DateText(time), "-", "");
}

std::uint32_t InstalledKilobytes(const InstallPlan& plan)
{
    std::uint64_t bytes = 0;
    for (const PlannedFile& file : plan.files)
        bytes += file.row->size;
    return static_cast<std::uint32_t>((bytes + 1023) / 1024);
}

} // namespace

RegistryKey UninstallEntryKey(const Text& product)
{
    return {RegistryRoot::LocalMachine,
            "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + AsFileName(product)};
}

void WriteUninstallEntry(const InstallInput& input, InstallTransaction& changes)
{
    const section::Version& version = input.setup.project.Version;
    const Text& project = input.setup.project.ProjectName.ProjectName;
    const Text uninstaller = UninstallerPath(input.plan.mainFolder);
    const Text command = "\"" + uninstaller + "\" \"" + input.plan.installLog + "\"";
    const RegistryKey key = UninstallEntryKey(project);
    const auto write = [&](const char* name, const Text& text) {
        if (!text.empty())
            changes.WriteValue(key, name, TextData(text));
    };
    write("DisplayName", version.ProductName.empty() ? project : version.ProductName);
    write("DisplayVersion", input.setup.XProductVersion.empty() ? version.ProductVersion
                                                                : input.setup.XProductVersion);
    write("Publisher", version.CompanyName);
    write("UninstallString", command);
    write("QuietUninstallString", command + " /S");
    write("InstallLocation", input.plan.mainFolder);
    write("DisplayIcon", uninstaller);
    write("InstallDate", CompactDate(input.host.machine.Now()));
    changes.WriteValue(key, "EstimatedSize", NumberData(InstalledKilobytes(input.plan)));
    changes.WriteValue(key, "NoModify", NumberData(1));
    changes.WriteValue(key, "NoRepair", NumberData(1));
}

} // namespace quillon
