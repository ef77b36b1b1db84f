#include "wine/package.h"

#include "formats/install_row.h"
#include "helpers/ansi_text.h"
#include "helpers/text.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace quillon::test {

namespace fs = std::filesystem;

namespace {

// The tool; for 64-bit Wine beside the runtime of that kind. A program finds its data beside
// itself, so the files are copies.
fs::path ToolFolder()
{
    const fs::path tool = fs::path(QUILLON_BUILD_FOLDER) / "quillon";
    if (WineBits() == 32)
        return tool;
    static const fs::path twin = [&] {
        const fs::path folder = WorkFolder() / "tool";
        fs::create_directory(folder);
        for (const fs::directory_entry& entry : fs::directory_iterator(tool)) {
            const fs::path name = entry.path().filename();
            if (name == "Release")
                fs::create_directory_symlink(RuntimeFolder(), folder / name);
            else if (entry.is_directory())
                fs::create_directory_symlink(entry.path(), folder / name);
            else
                fs::copy_file(entry.path(), folder / name);
        }
        return folder;
    }();
    return twin;
}

} // namespace

fs::path MakePackage(const PackageOrder& order)
{
    static int number = 0;
    const fs::path package = WorkFolder() / ("paket " + std::to_string(++number));
    fs::create_directory(package);
    std::vector<std::string> command{ToolFolder() / "quillonc", "create", order.project, "--to",
                                     package};
    command.insert(command.end(), order.options.begin(), order.options.end());
    const ProgramResult created =
        RunProgram(command, {{"QUILLON_DRIVES", "S=" + order.drive.string()},
                             {"QUILLON_DRIVE_C", WorkFolder() / "drive-of-the-tool"},
                             {"TZ", "UTC"}});
    EXPECT_EQ(created.exitCode, 0) << created.output;
    return package;
}

PackageOrder ExampleOrder()
{
    return {.project = fs::path(QUILLON_SOURCE_FOLDER) / "examples" / "hello" / "hello.qnp",
            .drive = fs::path(QUILLON_BUILD_FOLDER) / "example-src",
            .options = {}};
}

void WriteManifest(const fs::path& package)
{
    const ProgramResult summed =
        RunProgram({"/bin/sh", "-c",
                    "cd \"$0\" && find . -type f ! -name PACKAGE.SHA256 -printf '%P\\0' | "
                    "xargs -0 sha256sum > PACKAGE.SHA256",
                    package});
    EXPECT_EQ(summed.exitCode, 0) << summed.output;
}

std::string ReadBytes(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

void WriteBytes(const fs::path& path, const std::string& bytes)
{
    fs::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    EXPECT_TRUE(file.good()) << path;
}

void ChangeSetupKey(const fs::path& package, const std::string& key, const std::string& value)
{
    std::string bytes = ReadBytes(package / "QNSETUP.INF");
    const std::size_t start = bytes.find("\r\n" + key + " = ");
    ASSERT_NE(start, std::string::npos) << key;
    const std::size_t end = bytes.find("\r\n", start + 2);
    bytes.replace(start, end - start, "\r\n" + key + " = " + value);
    WriteBytes(package / "QNSETUP.INF", bytes);
    WriteManifest(package);
}

std::vector<PackagedRow> PackagedRows(const fs::path& package)
{
    std::vector<PackagedRow> rows;
    for (const InstallRow& row : ReadInstallFileList(ReadBytes(package / "FILELIST.INF")).rows)
        rows.push_back({row.name, row.destination, row.sourceFolder});
    return rows;
}

} // namespace quillon::test
