// Reads the packages' containers, which are ordinary ZIP files: stored and deflated entries, ZIP64,
// UTF-8 names, WinZip AES-256 (AE-1 and AE-2). The source of the format is PKWARE's APPNOTE.TXT
// 6.3.x and WinZip's paper on its AES. An archive is never trusted: every length and offset is
// checked against the file before it is used.
#pragma once

#include "archive/inflation.h"
#include "helpers/date_text.h"
#include "helpers/text.h"
#include "platform/file_system.h"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace quillon {

struct ZipEntry {
    Text name;    // '/' between folders
    Text comment; // in FILEDATA.DAT the rows that the entry serves: "F1" or "F1 F7"
    std::uint64_t size = 0;
    std::uint64_t packedSize = 0;
    std::uint32_t crc = 0;
    LocalTime modified;
    bool isStored = false;
    bool isEncrypted = false;
    bool hasCrc = true; // false under AE-2, which authenticates instead
    // Packed together with other files: it has no packed size and no CRC of its own, and the
    // entries' order is the one in which they are unpacked fastest.
    bool isSolid = false;
    // Where the entry's local header is, and the real method below an encryption.
    std::uint64_t headerPosition = 0;
    std::uint16_t method = 0;
};

class ZipError : public std::exception {
public:
    enum class Kind { NotAnArchive, Damaged, WrongPassword, Unsupported };

    /// `what` says what was wrong, in words for a line about the archive.
    ZipError(Kind kind, Text what) : kind_(kind), what_(std::move(what)) {}

    Kind Reason() const { return kind_; }
    const char* what() const noexcept override { return what_.c_str(); }

private:
    Kind kind_;
    Text what_;
};

class ZipReader {
public:
    using Sink = std::function<void(std::span<const std::byte>)>;

    /// Reads the list of entries. Throws `ZipError`, or `RunError` when the file can't be read.
    explicit ZipReader(std::unique_ptr<InputFile> archive,
                       const Inflation& inflation = LinkedInflation());
    ~ZipReader();
    ZipReader(ZipReader&&) noexcept;
    ZipReader& operator=(ZipReader&&) noexcept;

    const std::vector<ZipEntry>& Entries() const;

    /// Unpacks the entry piece by piece into `sink`, and at its end checks length, CRC and
    /// authentication. Throws `ZipError`; what the sink throws passes through.
    void Extract(const ZipEntry& entry, const Text& password, const Sink& sink);

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace quillon
