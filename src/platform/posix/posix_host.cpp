#include "platform/posix/posix_host.h"

#include "platform/run_error.h"
#include "platform/whole_file.h"

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
                                     "' is no registry export; its first line must be REGEDIT4 or "
                                     "Windows Registry Editor Version 5.00.");
        } catch (const RunError& error) {
            complaints.push_back("QUILLON_REGISTRY: '" + hostPath + "' can't be read (error " +
                                 std::to_string(error.Number()) + ").");
        }
    }
    return registry;
}

} // namespace

PosixHost::PosixHost(MachineSettings settings)
    : complaints(settings.complaints), drives(settings.drives), files(drives),
      machine(settings, drives, files,
              ReadRegistryFiles(settings.registryFiles, drives, files, complaints))
{
}

} // namespace quillon
