#include "wine/sample_product.h"

#include "helpers/windows_path.h"
#include "platform/posix/posix_host.h"
#include "project/project_file.h"
#include "support/scripted_ask.h"

#include <chrono>
#include <gtest/gtest.h>

namespace quillon::test {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLargeFile = 6 * 1024 * 1024;
constexpr int kFolders = 6;
constexpr int kFilesInFolder = 40;

// Numbers that are the same on every machine and in every run.
class Numbers {
public:
    explicit Numbers(unsigned seed) : state_(seed * 2654435761U + 1) {}
    unsigned Next() { return (state_ = state_ * 1664525U + 1013904223U) >> 8U; }

private:
    unsigned state_;
};

// Half of it shrinks well and half not at all.
std::string Bytes(std::size_t size, unsigned seed)
{
    Numbers numbers(seed);
    std::string bytes;
    while (bytes.size() < size / 2)
        bytes += "Rad " + std::to_string(numbers.Next() % 100) + ": bättre en fågel i handen\r\n";
    while (bytes.size() < size)
        bytes += static_cast<char>(numbers.Next());
    bytes.resize(size);
    return bytes;
}

section::FileComponent Component(const char* name, const char* folder, int isDefault, int isMust)
{
    return {.Comp = 1,
            .CompName = name,
            .CompDir = folder,
            .CompText = name,
            .CompDefault = Integer(isDefault),
            .CompMustAlwaysBeInstalled = Integer(isMust)};
}

} // namespace

SampleProduct::SampleProduct()
{
    static int number = 0;
    folder_ = WorkFolder() / ("produkt" + std::to_string(++number));
    fs::create_directories(Drive());
    Fill();
    AddFiles();
}

void SampleProduct::Fill()
{
    project.ProjectName.ProjectName = "Provpaket Åäö";
    project.Version = {.CompanyName = "Prov & Co", .ProductVersion = "3.4"};
    project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\Provpaket Åäö";
    project.InstallOptions.UninstallSupport = kOn;
    project.FileComponents[0] = Component("Alltid", "%DESTDIR\\Alltid", 0, 1);
    project.FileComponents[1] = Component("Kanske", "%DESTDIR\\Kanske", 1, 0);
    project.FileComponents[2] = Component("Nej tack", "C:\\Nej tack", 0, 0);
    project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Prov\r\n"
                             "HKEY_LOCAL_MACHINE\\SOFTWARE\\Prov\\Djup\\Nyckel :: Tal=-5\r\n"
                             "HKEY_CURRENT_USER\\SOFTWARE\\Prov :: Mapp=\"%DESTDIR\\Data\"\r\n"
                             "HKEY_CLASSES_ROOT\\.prov :: (Standard)=\"Prov.Fil\"";
    project.Lists.INIFiles = "-- WIN.INI --\r\n[Prov]\r\nMapp=%DESTDIR\r\nTom=\r\n";
}

void SampleProduct::AddFiles()
{
    for (int folder = 1; folder <= kFolders; ++folder)
        for (int file = 1; file <= kFilesInFolder; ++file) {
            const int number = (folder - 1) * kFilesInFolder + file;
            Add("Data\\Mapp " + std::to_string(folder), "fil_" + std::to_string(number) + ".dat",
                Bytes(std::size_t(number) * 37, unsigned(number)));
        }
    Add("Blåbär\\Lingon & hjortron", "Räksmörgås på ö.txt", "åäö ÅÄÖ é ü\r\n");
    Add("Blåbär", "Tom.txt", "");
    Add("Stort", "Stor fil.bin", Bytes(kLargeFile, 4711));
    Add("Data", "Skyddad.txt", "rör ej", "P");
    Add("Alltid", "Alltid.txt", "alltid", "", 1);
    Add("Kanske", "Kanske.txt", "kanske", "", 2);
    Add("Nej tack", "Aldrig.txt", "aldrig", "", 3);

    FileListRow emptyFolder;
    emptyFolder[Filename] = kEmptyFolderName;
    emptyFolder[Destination] = "%DESTDIR\\Tom mapp\\Även den";
    project.Files.rows.push_back(emptyFolder);
}

void SampleProduct::Add(const std::string& folder, const std::string& name,
                        const std::string& bytes, const std::string& options, int component)
{
    const fs::path below = fs::path(ReplaceAll(folder, "\\", "/")) / name;
    WriteBytes(Drive() / below, bytes);
    // Even seconds, which is all that a container counts; a day each apart, over both winter and
    // summer.
    const auto size = std::chrono::hours(24) * static_cast<int>(files_.size());
    fs::last_write_time(Drive() / below,
                        fs::file_time_type::clock::now() - std::chrono::hours(24 * 400) + size);

    FileListRow row;
    row[Filename] = name;
    row[Destination] =
        component > 0 ? "%COMPDIR" + std::to_string(component) : "%DESTDIR\\" + folder;
    row[Size] = "1.0";
    row[CopyOptions] = options;
    row[ComponentNumber] = component > 0 ? std::to_string(component) : "";
    row[Extension] = ExtensionFromFirstDot(name);
    row[Source] = LowerCase("s:\\" + folder + "\\" + name);
    AddRow(row, {.source = below,
                 .destination = "C:\\Program Files\\Provpaket Åäö\\" + folder + "\\" + name,
                 .isInstalled = component != 3,
                 .isReadOnly = options.find('P') != std::string::npos});
}

void SampleProduct::AddRow(FileListRow row, SampleFile file)
{
    project.Files.rows.push_back(std::move(row));
    files_.push_back(std::move(file));
}

PackageOrder SampleProduct::Order(std::vector<std::string> options)
{
    const fs::path path = folder_ / "prov.qnp";
    PosixHost machine({.drives = {{'C', folder_ / "drive-c"}, {'Z', "/"}}});
    ScriptedAsk ask;
    WriteProjectFile(project, "Z:" + ReplaceAll(path.string(), "/", "\\"), machine.host, ask);
    return {.project = path, .drive = Drive(), .options = std::move(options)};
}

} // namespace quillon::test
