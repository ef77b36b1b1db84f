// The least of a machine that a reader of the tool's files needs, for programs without a test
// framework: one file, a decimal comma, and a user who answers nothing.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"
#include "platform/run_error.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace quillon::test {

class BytesInput : public InputFile {
public:
    explicit BytesInput(const std::string& bytes) : bytes_(bytes) {}

    std::size_t Read(std::span<std::byte> buffer) override
    {
        const std::size_t count = std::min(buffer.size(), bytes_.size() - position_);
        if (count > 0)
            std::memcpy(buffer.data(), bytes_.data() + position_, count);
        position_ += count;
        return count;
    }
    void Seek(std::uint64_t position) override
    {
        position_ = std::min(static_cast<std::size_t>(position), bytes_.size());
    }
    std::uint64_t Size() const override { return bytes_.size(); }

private:
    const std::string& bytes_;
    std::size_t position_ = 0;
};

class BytesOutput : public OutputFile {
public:
    explicit BytesOutput(std::string& bytes) : bytes_(bytes) { bytes_.clear(); }

    void Write(std::span<const std::byte> bytes) override
    {
        bytes_.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    }
    void WriteAt(std::uint64_t, std::span<const std::byte>) override
    {
        throw RunError(ErrorNumber::kDeviceIo);
    }
    std::uint64_t Position() const override { return bytes_.size(); }
    void Close() override {}

private:
    std::string& bytes_;
};

/// Every path is the one file. What is saved over it becomes it when it is finished.
class OneFile : public FileSystem {
public:
    explicit OneFile(std::string content) : bytes(std::move(content)) {}

    bool FileExists(const Text&) const override { return true; }
    bool DirExists(const Text&) const override { return false; }
    FileStatus Status(const Text&) const override { return {.size = bytes.size()}; }
    std::vector<FolderEntry> List(const Text&) const override { return {}; }
    std::unique_ptr<InputFile> OpenInput(const Text&) const override
    {
        return std::make_unique<BytesInput>(bytes);
    }
    std::unique_ptr<OutputFile> OpenOutput(const Text&) override
    {
        return std::make_unique<BytesOutput>(bytes);
    }
    std::unique_ptr<OutputFile> OpenNew(const Text&) override
    {
        return std::make_unique<BytesOutput>(unfinished_);
    }
    void Replace(const Text&, const Text&) override { bytes = std::move(unfinished_); }
    bool DirCreate(const Text&) override { return false; }
    void CopyContent(const Text&, const Text&) override {}
    void RemoveFile(const Text&) override {}
    void RemoveFolder(const Text&) override {}
    void Rename(const Text&, const Text&) override {}
    void SetModified(const Text&, const LocalTime&) override {}
    void SetReadOnly(const Text&, bool) override {}
    std::uint64_t FreeSpace(const Text&) const override { return 0; }
    DriveKind DriveType(const Text&) const override { return DriveKind::Fixed; }
    Text GetVolumeName(const Text&) const override { return {}; }
    Text ShortPath(const Text& path) const override { return path; }

    std::string bytes;

private:
    std::string unfinished_;
};

class PlainMachine : public Machine {
public:
    Text GetWindowsDir() const override { return {}; }
    Text GetSystemDir() const override { return {}; }
    Text GetProgramFilesDir() const override { return {}; }
    Text GetMyDocumentsDir() const override { return {}; }
    Text GetSysAppDataDirectory() const override { return {}; }
    Text GetSysLocalAppDataDirectory() const override { return {}; }
    Text GetSysTemplatesDirectory() const override { return {}; }
    Text GetTempDir() const override { return {}; }
    Text GetSettingsDir() const override { return {}; }
    std::optional<Text> ReadRegistryValue(RegistryRoot, const Text&, const Text&) const override
    {
        return std::nullopt;
    }
    RegisteredOwner GetWindowsRegisteredOwner() const override { return {}; }
    bool IsWindowsXP() const override { return false; }
    bool GetDisplayCharSize() const override { return false; }
    char DecimalSign() const override { return ','; }
    LocalTime Now() const override { return {}; }
    std::uint32_t Random(std::uint32_t) override { return 0; }
    void StartProgram(const Text&, const Text&) override {}
    void OpenDocument(const Text&) override {}
    void EditTextFile(const Text&) override {}
};

class SilentUser : public Ask {
public:
    void Inform(const Text&, const Text&) override {}
    void Warn(const Text&, const Text&) override {}
    void Critical(const Text&, const Text&) override {}
    bool YesNo(const Text&, const Text&, Stops) override { return false; }
    bool OkCancel(const Text&, const Text&) override { return false; }
    Answer YesNoCancel(const Text&, const Text&) override { return Answer::Cancel; }
    void AddStatusLine(const Text&) override {}
    void ShowProgress(std::uint64_t, std::uint64_t) override {}
    void ShowBusyPointer(bool) override {}
    void Beep() override {}
    void ProcessEvents() override {}
};

} // namespace quillon::test
