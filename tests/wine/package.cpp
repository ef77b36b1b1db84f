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

// The runtime's files as they are called in a package, and where they come from.
constexpr std::pair<const char*, const char*> kRuntimeFiles[] = {
    {"SETUP.EXE", "SETUP32.EXE"},     {"QNS32X.BIN", "Small32/QNS32X.EXE"},
    {"DUNZIP32.DLL", "DUNZIP32.DLL"}, {"QNREG32.BIN", "QNREG32.EXE"},
    {"QNXREG2.BIN", "QNXREG2.EXE"},   {"QNXUNIN.BIN", "QNXUNIN.EXE"},
};

void UseRuntimeOfThisWine(const fs::path& package, bool isSmall)
{
    for (const auto& [name, source] : kRuntimeFiles)
        if (fs::exists(package / name))
            fs::copy_file(RuntimeFolder() / source, package / name,
                          fs::copy_options::overwrite_existing);
    if (isSmall)
        fs::copy_file(RuntimeFolder() / "Solid" / "DUNZIP32.DLL", package / "DUNZIP32.DLL",
                      fs::copy_options::overwrite_existing);
    WriteManifest(package);
}

} // namespace

fs::path MakePackage(const PackageOrder& order)
{
    static int number = 0;
    const fs::path package = WorkFolder() / ("paket " + std::to_string(++number));
    fs::create_directory(package);
    const fs::path quillonc = fs::path(QUILLON_BUILD_FOLDER) / "quillon" / "quillonc";
    std::vector<std::string> command{quillonc, "create", order.project, "--to", package};
    command.insert(command.end(), order.options.begin(), order.options.end());
    const ProgramResult created =
        RunProgram(command, {{"QUILLON_DRIVES", "S=" + order.drive.string()},
                             {"QUILLON_DRIVE_C", WorkFolder() / "drive-of-the-tool"},
                             {"TZ", "UTC"}});
    EXPECT_EQ(created.exitCode, 0) << created.output;
    if (WineBits() == 64)
        UseRuntimeOfThisWine(package, std::ranges::count(order.options, "--small") > 0);
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
