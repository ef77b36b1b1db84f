#include "runtime/journal/started_setups.h"

#include "helpers/drive_path.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/journal/transaction_journal.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr const char* kOwnKey = "SOFTWARE\\Quillon";
constexpr const char* kMainFolder = "MainFolder";
constexpr RegistryRoot kRoots[] = {RegistryRoot::LocalMachine, RegistryRoot::CurrentUser};

RegistryKey KeyOf(RegistryRoot root, const Text& product)
{
    return {root, JoinPath(kOwnKey, AsFileName(product))};
}

void RemoveEmptyKey(Target& target, const RegistryKey& key)
{
    if (target.KeyExists(key) && target.SubKeys(key).empty() && target.ValueNames(key).empty())
        target.RemoveKey(key);
}

void Forget(Target& target, RegistryRoot root, const Text& product)
{
    const RegistryKey key = KeyOf(root, product);
    RunErrorNumber([&] {
        if (target.ReadValue(key, kMainFolder))
            target.RemoveValue(key, kMainFolder);
        RemoveEmptyKey(target, key);
        RemoveEmptyKey(target, {root, kOwnKey});
    });
}

bool HasTrustedJournal(const FileSystem& files, const Target& target, const Text& mainFolder)
{
    const std::vector<Text> paths = JournalPaths(mainFolder);
    return std::any_of(paths.begin(), paths.end(), [&](const Text& path) {
        return files.FileExists(path) && target.IsOfTrustedUser(path);
    });
}

} // namespace

void NoteStartedSetup(Target& target, const Text& product, InstallScope scope,
                      const Text& mainFolder)
{
    const auto note = [&](RegistryRoot root) {
        std::optional<RunError> failure;
        const auto write = [&] {
            const RegistryKey key = KeyOf(root, product);
            target.MakeKey(key);
            target.WriteValue(key, kMainFolder, TextData(mainFolder));
        };
        if (RunErrorNumber(write, failure) == ErrorNumber::kNone)
            return true;
        Forget(target, root, product);
        if (failure->Number() != ErrorNumber::kPermissionDenied)
            throw *failure;
        return false;
    };
    if (scope == InstallScope::CurrentUser || !note(RegistryRoot::LocalMachine))
        note(RegistryRoot::CurrentUser);
}

std::vector<Text> FoldersOfStartedSetups(const FileSystem& files, const Target& target,
                                         const Text& product)
{
    std::vector<Text> folders;
    for (const RegistryRoot root : kRoots) {
        const auto data = target.ReadValue(KeyOf(root, product), kMainFolder);
        const Text folder = data ? TextOf(*data).value_or("") : Text();
        // The value may hold any text, since others can write it.
        if (IsAbsolutePath(folder) && HasTrustedJournal(files, target, folder))
            folders.push_back(folder);
    }
    return folders;
}

void ForgetStartedSetups(Target& target, const Text& product)
{
    for (const RegistryRoot root : kRoots)
        Forget(target, root, product);
}

} // namespace quillon
