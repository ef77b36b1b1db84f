// equal_files_cost FOLDER: how many times as long an archive of a folder without equal files takes
// because equal ones are looked for, for bench/create.sh. Equal ones are left out beforehand.
#include "archive/writer/equal_files.h"
#include "archive/writer/zip_writer.h"
#include "helpers/windows_path.h"
#include "platform/posix/posix_host.h"
#include "support/counting_output.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace quillon::bench {
namespace {

constexpr int kRuns = 3;

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

std::vector<ZipSource> DifferentFiles(const FileSystem& files, const std::vector<Text>& paths)
{
    const std::vector<FileContent> contents = FindEqualFiles(files, paths, [] {});
    std::vector<ZipSource> sources;
    for (std::size_t i = 0; i < paths.size(); ++i)
        if (contents[i].original == i)
            sources.push_back({paths[i], ReplaceAll(paths[i].substr(3), "\\", "/"), {}});
    return sources;
}

double Seconds(const FileSystem& files, const std::vector<ZipSource>& sources, bool shares)
{
    ZipWatch watch;
    if (shares)
        watch.onEqual = [](auto...) { return std::nullopt; };
    test::CountingOutput target;
    const auto begin = std::chrono::steady_clock::now();
    WriteZip(files, sources, target, {}, watch);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

int Measure(const char* hostFolder)
{
    PosixHost posix;
    const auto folder = posix.drives.ToWindows(hostFolder);
    if (!folder)
        return EXIT_FAILURE;
    std::vector<Text> paths;
    AddFolder(posix.files, *folder, paths);
    const std::vector<ZipSource> sources = DifferentFiles(posix.files, paths);
    double with = Seconds(posix.files, sources, true);
    double without = Seconds(posix.files, sources, false);
    for (int run = 1; run < kRuns; ++run) {
        with = std::min(with, Seconds(posix.files, sources, true));
        without = std::min(without, Seconds(posix.files, sources, false));
    }
    std::printf("%.4f\n", with / without);
    return EXIT_SUCCESS;
}

} // namespace
} // namespace quillon::bench

int main(int argc, char** argv)
{
    return argc == 2 ? quillon::bench::Measure(argv[1]) : EXIT_FAILURE;
}
