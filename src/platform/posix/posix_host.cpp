#include "platform/posix/posix_host.h"

#include "helpers/number_text.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace quillon {

namespace {

RegistryFiles ReadRegistryFiles(const std::vector<std::string>& hostPaths, const DriveMap& drives,
                                const PosixFiles& files, std::vector<Text>& complaints)
{
    RegistryFiles registry;
    for (const std::string& hostPath : hostPaths) {
        try {
            const Text path = drives.ToWindows(hostPath).value_or("");
            if (!registry.Add(ReadWholeFile(files, path)))
                complaints.push_back("QUILLON_REGISTRY: '" + hostPath +
                                     "' är ingen registerexport; första raden ska vara REGEDIT4 "
                                     "eller Windows Registry Editor Version 5.00.");
        } catch (const RunError& error) {
            complaints.push_back("QUILLON_REGISTRY: '" + hostPath + "' kan ej läsas (Fel #" +
                                 NumberText(error.Number()) + ").");
        }
    }
    return registry;
}

// Without its folders the tool works, but knows none of those of Windows.
void LookAtDriveC(const DriveMap& drives, const Machine& machine, std::vector<Text>& complaints)
{
    if (machine.GetSystemDir().empty())
        complaints.push_back("Enheten C: kan ej skapas i '" + drives.FolderOf('C').value_or("") +
                             "'; ange en annan katalog med QUILLON_DRIVE_C.");
}

} // namespace

PosixHost::PosixHost(MachineSettings settings)
    : complaints(settings.complaints), drives(settings.drives, settings.folders), files(drives),
      machine(settings, drives, files,
              ReadRegistryFiles(settings.registryFiles, drives, files, complaints)),
      programs(drives, settings.tempFolder), dataFolder_(settings.dataFolder)
{
    LookAtDriveC(drives, machine, complaints);
}

Text PosixHost::ProgramFolder() const
{
    std::error_code unknown;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", unknown);
    return drives.ToWindows(program.parent_path().string()).value_or("");
}

Text PosixHost::OwnFolder() const
{
    return OwnFolder(ProgramFolder());
}

Text PosixHost::OwnFolder(const Text& programFolder) const
{
    const auto hostPath = drives.ToHost(programFolder);
    const bool canBeWritten =
        hostPath && faccessat(AT_FDCWD, hostPath->c_str(), W_OK | X_OK, AT_EACCESS) == 0;
    if (canBeWritten || dataFolder_.empty())
        return programFolder;
    return drives.ToWindows(dataFolder_).value_or(programFolder);
}

} // namespace quillon
