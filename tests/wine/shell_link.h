// A shortcut file (.lnk), as far as tests look at one.
#pragma once

#include <filesystem>
#include <string>

namespace quillon::test {

struct ShellLink {
    bool isShellLink = false; // the magic number and the class id are right
    std::string target;
    std::string description;
    std::string workFolder;
    std::string arguments;
    std::string iconFile;
};

ShellLink ReadShellLink(const std::filesystem::path& path);

} // namespace quillon::test
