#include "platform/posix/disk_info.h"

#include "helpers/number_text.h"
#include "platform/posix/open_file.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace quillon {

namespace {

// The kernel's own numbers for the file systems that say what kind of disk they are on. The headers
// name only some of them.
constexpr std::array<unsigned, 2> kCdSystems = {ISOFS_SUPER_MAGIC, UDF_SUPER_MAGIC};
constexpr std::array<unsigned, 4> kRemoteSystems = {NFS_SUPER_MAGIC, SMB_SUPER_MAGIC,
                                                    CIFS_SUPER_MAGIC, SMB2_SUPER_MAGIC};

template <std::size_t n>
bool IsOneOf(const std::array<unsigned, n>& systems, unsigned type)
{
    return std::find(systems.begin(), systems.end(), type) != systems.end();
}

/// The kernel keeps this word with the whole disk, one folder above a partition.
bool IsRemovable(dev_t device)
{
    const std::string folder =
        "/sys/dev/block/" + NumberText(major(device)) + ":" + NumberText(minor(device));
    for (const char* place : {"/removable", "/../removable"}) {
        const Descriptor file(open((folder + place).c_str(), O_RDONLY | O_CLOEXEC));
        char word = '0';
        if (file.IsOpen() && read(file.Number(), &word, 1) == 1 && word == '1')
            return true;
    }
    return false;
}

/// Blanks and the like are in names of /dev as "\x20".
Text DecodeDeviceName(const std::string& name)
{
    Text text;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool isCode = name.compare(i, 2, "\\x") == 0 && i + 4 <= name.size();
        text += isCode ? static_cast<char>(std::strtol(name.substr(i + 2, 2).c_str(), nullptr, 16))
                       : name[i];
        i += isCode ? 3 : 0;
    }
    return text;
}

} // namespace

std::optional<std::uint64_t> FreeSpaceOf(const std::string& hostFolder)
{
    struct statvfs disk {};
    if (statvfs(hostFolder.c_str(), &disk) != 0)
        return std::nullopt;
    return std::uint64_t(disk.f_bavail) * disk.f_frsize;
}

std::optional<std::uint64_t> SizeOfDisk(const std::string& hostFolder)
{
    struct statvfs disk {};
    if (statvfs(hostFolder.c_str(), &disk) != 0)
        return std::nullopt;
    return std::uint64_t(disk.f_blocks) * disk.f_frsize;
}

DriveKind KindOfDisk(const std::string& hostFolder)
{
    struct statfs system {};
    struct stat status {};
    if (statfs(hostFolder.c_str(), &system) != 0 || stat(hostFolder.c_str(), &status) != 0)
        return DriveKind::Unknown;
    const auto type = static_cast<unsigned>(system.f_type);
    if (IsOneOf(kCdSystems, type))
        return DriveKind::Cd;
    if (IsOneOf(kRemoteSystems, type))
        return DriveKind::Remote;
    return IsRemovable(status.st_dev) ? DriveKind::Removable : DriveKind::Fixed;
}

Text LabelOfDisk(const std::string& hostFolder)
{
    struct stat folder {};
    if (stat(hostFolder.c_str(), &folder) != 0)
        return {};
    std::error_code none;
    for (const auto& entry : std::filesystem::directory_iterator("/dev/disk/by-label", none)) {
        struct stat device {};
        if (stat(entry.path().c_str(), &device) == 0 && device.st_rdev == folder.st_dev)
            return DecodeDeviceName(entry.path().filename().string());
    }
    return {};
}

} // namespace quillon
