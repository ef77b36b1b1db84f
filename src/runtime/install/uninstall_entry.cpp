#include "runtime/install/uninstall_entry.h"

#include "runtime/install/planned_shortcuts.h"
#include "runtime/uninstall_entry_key.h"

#include <algorithm>

namespace quillon {

namespace {

const section::Version& VersionData(const EntryContext& entry)
{
    return entry.input.setup.project.Version;
}

const Text& ProductOf(const EntryContext& entry)
{
    return entry.input.setup.project.ProjectName.ProjectName;
}

Text ShownName(const EntryContext& entry)
{
    const Text& name = VersionData(entry).ProductName;
    return name.empty() ? ProductOf(entry) : name;
}

Text Command(const EntryContext& entry)
{
    const InstallPlan& plan = entry.input.plan;
    return "\"" + UninstallerPath(plan.mainFolder) + "\" \"" + plan.installJournal + "\"";
}

// "20040301"
Text CompactDate(const LocalTime& time)
{
    return ReplaceAll(DateText(time), "-", "");
}

// The list counts in kilobytes; what is larger than it can count is as much as it can.
RegistryData Kilobytes(const EntryContext& entry)
{
    constexpr std::uint64_t kMax = 0xFFFFFFFF;
    return NumberData(
        static_cast<std::uint32_t>(std::min((entry.installedBytes + 1023) / 1024, kMax)));
}

RegistryData One(const EntryContext&)
{
    return NumberData(1);
}

struct EntryValue {
    const char* name;
    /// An empty text: the product has none, and the key has no such value.
    RegistryData (*data)(const EntryContext& entry);
};

// A project names no address of its maker, so there is none to show.
// clang-format off
constexpr EntryValue kValues[] = {
    {"DisplayName",          [](const EntryContext& entry) { return TextData(ShownName(entry)); }},
    {kDisplayVersion,        [](const EntryContext& entry) { return TextData(VersionOf(entry.input.setup)); }},
    {"Publisher",            [](const EntryContext& entry) { return TextData(VersionData(entry).CompanyName); }},
    {kUninstallString,       [](const EntryContext& entry) { return TextData(Command(entry)); }},
    {"QuietUninstallString", [](const EntryContext& entry) { return TextData(Command(entry) + " /S"); }},
    {kInstallLocation,       [](const EntryContext& entry) { return TextData(entry.input.plan.mainFolder); }},
    {"DisplayIcon",          [](const EntryContext& entry) { return TextData(UninstallerPath(entry.input.plan.mainFolder)); }},
    {"InstallDate",          [](const EntryContext& entry) { return TextData(CompactDate(entry.input.host.machine.Now())); }},
    {"EstimatedSize",        Kilobytes},
    {"NoModify",             One},
    {"NoRepair",             One},
};
// clang-format on

} // namespace

const Text& VersionOf(const SetupInformation& setup)
{
    const Text& ofProgram = setup.XProductVersion;
    return ofProgram.empty() ? setup.project.Version.ProductVersion : ofProgram;
}

void WriteUninstallEntry(const EntryContext& entry, InstallTransaction& transaction)
{
    const RegistryKey key = UninstallEntryKey(ProductOf(entry), entry.input.plan.scope);
    const RegistryData none = TextData("");
    for (const EntryValue& value : kValues)
        if (const RegistryData data = value.data(entry); data == none)
            transaction.RemoveValue(key, value.name);
        else
            transaction.WriteValue(key, value.name, data);
}

} // namespace quillon
