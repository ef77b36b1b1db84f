// An archive while it grows: a file "QN<number>.TMP" that is gone when its work is done.
#pragma once

#include "platform/host.h"

namespace quillon {

class TemporaryFile {
public:
    /// Clears the folder first of what killed runs have left in it. Throws as `OpenOutput` does.
    TemporaryFile(Host& host, const Text& folder);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const Text& Path() const { return path_; }
    OutputFile& Output() { return *output_; }

private:
    FileSystem& files_;
    Text path_;
    std::unique_ptr<OutputFile> output_;
};

} // namespace quillon
