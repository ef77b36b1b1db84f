#include "runtime/uninstall/installed_product.h"

#include "helpers/windows_path.h"
#include "platform/whole_file.h"
#include "runtime/ini_files/ini_changes.h"
#include "runtime/install/planned_shortcuts.h"
#include "runtime/journal/journal_table.h"

#include <algorithm>

namespace quillon {

std::optional<InstalledProduct> ReadInstalledProduct(const FileSystem& files,
                                                     const Text& journalPath)
{
    if (!files.FileExists(journalPath))
        return std::nullopt;
    auto records = ReadInstallJournal(ReadWholeFile(files, journalPath));
    if (!records)
        return std::nullopt;
    InstalledProduct product;
    for (const JournalRecord& record : *records) {
        if (const auto* const named = std::get_if<record::Product>(&record))
            product.name = named->name;
        const auto* const message = std::get_if<record::Message>(&record);
        for (int i = 0; message && i < int(Message::Count); ++i)
            if (IsOfUninstaller(Message(i)) && message->key == KeyOf(Message(i)).key)
                product.texts.Set(Message(i), message->text);
    }
    product.records = std::move(*records);
    return product;
}

void ForgetSharedFiles(const JournalToRewrite& journal, const std::vector<JournalRecord>& records,
                       const std::set<Text>& paths)
{
    std::set<Text> dropped;
    for (const JournalRecord& record : records)
        if (std::holds_alternative<record::Shared>(record) &&
            paths.count(LowerCase(SubjectOf(record))) > 0)
            dropped.insert(JournalLine(record));
    Text kept;
    for (const Text& line : SplitLines(ReadWholeFile(journal.files, journal.path)))
        if (dropped.count(line) == 0 && !line.empty())
            kept += line + Text(kLineBreak);
    RewriteFile({journal.files, journal.target}, journal.path, kept);
    journal.target.CloseToOthers(journal.path);
}

bool IsInSameFolder(const FileSystem& files, const Text& journalPath, const Text& program)
{
    const Text wanted = files.ShortPath(journalPath);
    const std::vector<Text> journals = InstallJournalsIn(files, ExtractDirectory(program));
    return std::any_of(journals.begin(), journals.end(), [&](const Text& journal) {
        return EqualIgnoreCase(files.ShortPath(journal), wanted);
    });
}

bool IsTrusted(const FileSystem& files, const Target& target, const Text& journalPath,
               const Text& program)
{
    return IsInSameFolder(files, journalPath, program) &&
           (target.IsOfTrustedUser(journalPath) || target.HaveSameOwner(journalPath, program));
}

bool IsUninstallerRemovedWith(const FileSystem& files, const Text& journalPath,
                              const Text& uninstaller)
{
    const Text folder = ExtractDirectory(journalPath);
    const Text own = files.ShortPath(UninstallerPath(folder));
    if (!EqualIgnoreCase(files.ShortPath(uninstaller), own))
        return false;
    const std::vector<Text> journals = InstallJournalsIn(files, folder);
    return std::all_of(journals.begin(), journals.end(),
                       [&](const Text& journal) { return EqualIgnoreCase(journal, journalPath); });
}

} // namespace quillon
