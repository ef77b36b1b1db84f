// A folder for the length of one run, in the system's folder for temporary files.
#pragma once

#include "platform/host.h"

namespace quillon {

class PrivateFolder {
public:
    /// Throws where no folder can be made.
    explicit PrivateFolder(Host& host);
    /// Removes the folder with the files in it.
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;

    const Text& Path() const { return path_; }

private:
    Host& host_;
    Text path_;
    std::unique_ptr<FileLock> lock_; // tells a living setup's folder from one that was left behind
};

/// Such a folder that stays; its path. Throws where none can be made.
Text MakePrivateFolder(Host& host);

/// The folder that the running program's file is in, and that file.
Text ProgramFolder();
Text ProgramPath();

} // namespace quillon
