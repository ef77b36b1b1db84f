// Writes files and computes their digests on a second thread, while the caller unpacks what comes
// next. A small file is written by the caller: to hand it over would take longer.
#pragma once

#include "helpers/sha256.h"
#include "platform/file_system.h"
#include "platform/second_thread.h"

namespace quillon {

class BackgroundWriter {
public:
    /// One file at a time. The destructor waits, so that the output is not written to afterwards.
    class File {
    public:
        File(BackgroundWriter& writer, OutputFile& output);
        ~File();
        File(const File&) = delete;
        File& operator=(const File&) = delete;

        /// Throws also what the writing of earlier bytes has thrown.
        void Add(std::span<const std::byte> bytes);
        /// Once, after the last `Add`: everything has been given to the output.
        Sha256Digest Finish();

    private:
        void HandOver();
        void Write(std::span<const std::byte> bytes);

        BackgroundWriter& writer_;
        OutputFile& output_;
        Sha256 hash_;
    };

private:
    std::vector<std::byte> filling_;
    std::vector<std::byte> written_; // the thread reads it
    SecondThread thread_;            // ends before the two go
};

} // namespace quillon
