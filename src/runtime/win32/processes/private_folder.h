// A folder for the length of one run, in the system's folder for temporary files.
#pragma once

#include "platform/host.h"
#include "platform/win32/program_path.h"

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

/// The same for a folder that is not removed; its path. Throws where none can be made.
Text MakePrivateFolder(Host& host);

} // namespace quillon
