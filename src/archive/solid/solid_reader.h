// Reads a solid payload: many files packed as one stream, alone or at the end of a program, signed
// or not. The whole file is hashed before any of it is used, and its contents are checked
// nevertheless, since an attacker can make the hash fit.
#pragma once

#include "archive/solid/solid_table.h"
#include "platform/file_system.h"

#include <functional>
#include <memory>

namespace quillon {

/// Takes the files as they come out of the stream. What it throws ends the unpacking and passes
/// through.
class SolidSink {
public:
    virtual void Begin(const SolidFile& file) = 0;
    virtual void Write(std::span<const std::byte> bytes) = 0;
    virtual void End() = 0;

protected:
    ~SolidSink() = default; // never deleted through this class
};

class SolidReader {
public:
    /// Bytes of the file that are hashed, and all of them.
    using Progress = std::function<void(std::uint64_t done, std::uint64_t total)>;

    /// Finds the payload and checks the hash of the file and the table. Throws `SolidError`, or
    /// `RunError` where the file can't be read; what `onProgress` throws passes through.
    explicit SolidReader(std::unique_ptr<InputFile> file, const Progress& onProgress = {});

    const SolidTable& Table() const { return table_; }
    /// How much of the file the packed bytes take.

    /// All files, in the order of the table. Throws `SolidError`.
    void Extract(SolidSink& sink) const;

private:
    std::uint64_t FindTrailer(std::uint64_t end);
    void CheckDigest(std::uint64_t trailerPosition, const Progress& onProgress);
    void ReadTable();

    std::unique_ptr<InputFile> file_;
    SolidTrailer trailer_;
    SolidTable table_;
};

/// Whether a file ends in a payload, without a look at whether it is whole.
bool HasSolidPayload(InputFile& file);

} // namespace quillon
