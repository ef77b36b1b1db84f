// All access of the logic to the system, made once in main() and handed down.
#pragma once

#include "platform/file_system.h"
#include "platform/machine.h"

namespace quillon {

struct Host {
    FileSystem& files;
    Machine& machine;
};

/// Sets the file's date and time to the present moment.
inline void SetFileDateTime_Now(Host& host, const Text& path)
{
    host.files.SetModified(path, host.machine.Now());
}

} // namespace quillon
