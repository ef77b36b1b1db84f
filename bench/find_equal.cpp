// find_equal FOLDER: the seconds that Create takes to find out that no two files of a folder are
// equal, for bench/create.sh. Equal ones are found first and left out, since each of them saves
// more than the search costs.
#include "builder/equal_files.h"
#include "helpers/windows_path.h"
#include "platform/posix/posix_host.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace quillon::bench {
namespace {

void AddFolder(const FileSystem& files, const Text& folder, std::vector<Text>& paths)
{
    for (const FolderEntry& entry : files.List(folder)) {
        const Text path = JoinPath(folder, entry.name);
        if (entry.status.isFolder)
            AddFolder(files, path, paths);
        else
            paths.push_back(path);
    }
}

std::vector<Text> WithoutEqualOnes(const FileSystem& files, const std::vector<Text>& paths)
{
    const std::vector<FileContent> contents = FindEqualFiles(files, paths, [] {});
    std::vector<Text> different;
    for (std::size_t i = 0; i < paths.size(); ++i)
        if (contents[i].original == i)
            different.push_back(paths[i]);
    return different;
}

int Measure(const char* hostFolder)
{
    PosixHost posix;
    const auto folder = posix.drives.ToWindows(hostFolder);
    if (!folder)
        return EXIT_FAILURE;
    std::vector<Text> paths;
    AddFolder(posix.files, *folder, paths);
    const std::vector<Text> different = WithoutEqualOnes(posix.files, paths);
    const auto begin = std::chrono::steady_clock::now();
    FindEqualFiles(posix.files, different, [] {});
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    std::printf("%.4f\n", seconds.count());
    return EXIT_SUCCESS;
}

} // namespace
} // namespace quillon::bench

int main(int argc, char** argv)
{
    return argc == 2 ? quillon::bench::Measure(argv[1]) : EXIT_FAILURE;
}
