#include "runtime/uninstall_entry.h"

#include "runtime/planned_shortcuts.h"

#include <algorithm>

namespace quillon {

namespace {

const section::Version& VersionData(const EntryFacts& facts)
{
    return facts.input.setup.project.Version;
}

const Text& ProductOf(const EntryFacts& facts)
{
    return facts.input.setup.project.ProjectName.ProjectName;
}

Text ShownName(const EntryFacts& facts)
{
    const Text& name = VersionData(facts).ProductName;
    return name.empty() ? ProductOf(facts) : name;
}

Text Command(const EntryFacts& facts)
{
    const InstallPlan& plan = facts.input.plan;
    return "\"" + UninstallerPath(plan.mainFolder) + "\" \"" + plan.installJournal + "\"";
}

// "20040301"
Text CompactDate(const LocalTime& time)
{
    return ReplaceAll(DateText(time), "-", "");
}

// The list counts in kilobytes; what is larger than it can count is as much as it can.
RegistryData Kilobytes(const EntryFacts& facts)
{
    constexpr std::uint64_t kMax = 0xFFFFFFFF;
    return NumberData(
        static_cast<std::uint32_t>(std::min((facts.installedBytes + 1023) / 1024, kMax)));
}

RegistryData One(const EntryFacts&)
{
    return NumberData(1);
}

// A project names no address of its maker, so there is none to show.
// clang-format off
constexpr EntryValue kValues[] = {
    {"DisplayName",          [](const EntryFacts& facts) { return TextData(ShownName(facts)); }},
    {"DisplayVersion",       [](const EntryFacts& facts) { return TextData(VersionOf(facts.input.setup)); }},
    {"Publisher",            [](const EntryFacts& facts) { return TextData(VersionData(facts).CompanyName); }},
    {"UninstallString",      [](const EntryFacts& facts) { return TextData(Command(facts)); }},
    {"QuietUninstallString", [](const EntryFacts& facts) { return TextData(Command(facts) + " /S"); }},
    {"InstallLocation",      [](const EntryFacts& facts) { return TextData(facts.input.plan.mainFolder); }},
    {"DisplayIcon",          [](const EntryFacts& facts) { return TextData(UninstallerPath(facts.input.plan.mainFolder)); }},
    {"InstallDate",          [](const EntryFacts& facts) { return TextData(CompactDate(facts.input.host.machine.Now())); }},
    {"EstimatedSize",        Kilobytes},
    {"NoModify",             One},
    {"NoRepair",             One},
};
// clang-format on

} // namespace

RegistryKey UninstallEntryKey(const Text& product, InstallScope scope)
{
    return {scope == InstallScope::CurrentUser ? RegistryRoot::CurrentUser
                                               : RegistryRoot::LocalMachine,
            "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + AsFileName(product)};
}

const Text& VersionOf(const SetupInformation& setup)
{
    const Text& ofProgram = setup.XProductVersion;
    return ofProgram.empty() ? setup.project.Version.ProductVersion : ofProgram;
}

std::span<const EntryValue> UninstallEntryValues()
{
    return kValues;
}

void WriteUninstallEntry(const EntryFacts& facts, InstallTransaction& transaction)
{
    const RegistryKey key = UninstallEntryKey(ProductOf(facts), facts.input.plan.scope);
    const RegistryData none = TextData("");
    for (const EntryValue& value : kValues)
        if (const RegistryData data = value.data(facts); data == none)
            transaction.RemoveValue(key, value.name);
        else
            transaction.WriteValue(key, value.name, data);
}

RegistryKey RecordedUninstallEntry(const Text& product, const std::vector<JournalRecord>& records)
{
    const RegistryKey ofUser = UninstallEntryKey(product, InstallScope::CurrentUser);
    for (const JournalRecord& record : records)
        if (const auto* const value = std::get_if<record::Value>(&record);
            value && EqualIgnoreCase(KeyText(value->key), KeyText(ofUser)))
            return ofUser;
    return UninstallEntryKey(product);
}

} // namespace quillon
