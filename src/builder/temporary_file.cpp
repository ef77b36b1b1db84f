#include "builder/temporary_file.h"

#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

constexpr std::uint32_t kTemporaryNames = 100000000;
constexpr std::string_view kPrefix = "QN";
constexpr std::string_view kSuffix = ".TMP";

bool IsTemporaryName(const Text& name)
{
    if (!name.starts_with(kPrefix) || !name.ends_with(kSuffix))
        return false;
    const std::size_t marks = kPrefix.size() + kSuffix.size();
    const Text number = name.substr(kPrefix.size(), name.size() - marks);
    return !number.empty() &&
           std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// Other programs may think of such names too.
bool IsEmptyOrArchive(const FileSystem& files, const Text& path)
{
    std::array<std::byte, 2> start{};
    const std::size_t count = files.OpenInput(path)->Read(start);
    return count == 0 || (count == 2 && start[0] == std::byte('P') && start[1] == std::byte('K'));
}

void ClearLeftOvers(FileSystem& files, const Text& folder)
{
    std::vector<FolderEntry> entries;
    RunErrorNumber([&] { entries = files.List(folder); });
    for (const FolderEntry& entry : entries) {
        const Text path = JoinPath(folder, entry.name);
        if (IsTemporaryName(entry.name) && !entry.status.isFolder)
            RunErrorNumber([&] {
                if (IsEmptyOrArchive(files, path))
                    files.RemoveAbandoned(path);
            });
    }
}

} // namespace

TemporaryFile::TemporaryFile(Host& host, const Text& folder) : files_(host.files)
{
    ClearLeftOvers(files_, folder);
    while (!output_) {
        const std::uint32_t number = host.machine.Random(kTemporaryNames);
        path_ = JoinPath(folder, Text(kPrefix) + NumberText(number) + Text(kSuffix));
        output_ = files_.OpenNew(path_);
    }
}

TemporaryFile::~TemporaryFile()
{
    RunErrorNumber([this] {
        if (files_.FileExists(path_))
            files_.RemoveFile(path_);
    });
}

} // namespace quillon
