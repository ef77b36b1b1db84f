#include "wine/folder_state.h"

#include "helpers/text.h"

#include <chrono>

namespace quillon::test {

namespace fs = std::filesystem;

namespace {

std::string StateOfEntry(const fs::directory_entry& entry)
{
    if (entry.is_symlink())
        return "link to " + fs::read_symlink(entry.path()).string();
    if (entry.is_directory())
        return "folder";
    const auto time = entry.last_write_time().time_since_epoch();
    return std::to_string(entry.file_size()) + " bytes of " + std::to_string(time.count());
}

} // namespace

FolderState StateOf(const fs::path& folder)
{
    FolderState state;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
        state[LowerCase(fs::relative(entry.path(), folder).string())] = StateOfEntry(entry);
    return state;
}

std::string FolderDifference(const FolderState& before, const FolderState& after)
{
    std::string difference;
    for (const auto& [path, state] : after) {
        const auto old = before.find(path);
        if (old == before.end())
            difference += "new: " + path + "\n";
        else if (old->second != state)
            difference += "changed: " + path + "\n";
    }
    for (const auto& [path, state] : before)
        if (!after.contains(path))
            difference += "lost: " + path + "\n";
    return difference;
}

} // namespace quillon::test
