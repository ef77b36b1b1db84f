// A machine that costs next to nothing, so that a benchmark measures the product and not the disk:
// every path is a small file, and one output file is kept in memory.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace quillon::bench {

class OneFileInput : public InputFile {
public:
    explicit OneFileInput(const std::string& bytes) : bytes_(bytes) {}

    std::size_t Read(std::span<std::byte> buffer) override
    {
        const std::size_t count = std::min(buffer.size(), bytes_.size() - position_);
        std::memcpy(buffer.data(), bytes_.data() + position_, count);
        position_ += count;
        return count;
    }
    void Seek(std::uint64_t position) override { position_ = position; }
    std::uint64_t Size() const override { return bytes_.size(); }

private:
    const std::string& bytes_;
    std::size_t position_ = 0;
};

class OneFileOutput : public OutputFile {
public:
    explicit OneFileOutput(std::string& bytes) : bytes_(bytes) { bytes_.clear(); }

    void Write(std::span<const std::byte> bytes) override
    {
        bytes_.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    }
    void WriteAt(std::uint64_t position, std::span<const std::byte> bytes) override
    {
        std::memcpy(bytes_.data() + position, bytes.data(), bytes.size());
    }
    std::uint64_t Position() const override { return bytes_.size(); }
    void Close() override {}

private:
    std::string& bytes_;
};

class SmallFilesEverywhere : public FileSystem {
public:
    bool FileExists(const Text&) const override { return true; }
    bool DirExists(const Text&) const override { return true; }
    FileFacts Facts(const Text&) const override { return {.size = 12345}; }
    std::vector<FolderEntry> List(const Text&) const override { return {}; }
    std::unique_ptr<InputFile> OpenInput(const Text&) const override
    {
        return std::make_unique<OneFileInput>(bytes_);
    }
    std::unique_ptr<OutputFile> OpenOutput(const Text&) override
    {
        return std::make_unique<OneFileOutput>(bytes_);
    }
    bool DirCreate(const Text&) override { return true; }
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

private:
    std::string bytes_;
};

class PlainMachine : public Machine {
public:
    Text GetWindowsDir() const override { return "C:\\Windows"; }
    Text GetSystemDir() const override { return "C:\\Windows\\System32"; }
    Text GetProgramFilesDir() const override { return {}; }
    Text GetMyDocumentsDir() const override { return {}; }
    Text GetSysAppDataDirectory() const override { return {}; }
    Text GetSysLocalAppDataDirectory() const override { return {}; }
    Text GetSysTemplatesDirectory() const override { return {}; }
    Text GetTempDir() const override { return "C:\\Temp"; }
    std::optional<Text> ReadRegistryValue(RegistryRoot, const Text&, const Text&) const override
    {
        return std::nullopt;
    }
    RegisteredOwner GetWindowsRegisteredOwner() const override { return {}; }
    bool IsWindowsXP() const override { return false; }
    bool GetDisplayCharSize() const override { return false; }
    char DecimalSign() const override { return ','; }
    LocalTime Now() const override { return {2004, 3, 1}; }
    std::uint32_t Random(std::uint32_t) override { return 0; }
    void StartProgram(const Text&, const Text&) override {}
    void OpenDocument(const Text&) override {}
};

/// Nobody to ask: what would be a box ends the measurement.
class NobodyToAsk : public Ask {
public:
    void Inform(const Text& title, const Text& text) override { Refuse(title, text); }
    void Warn(const Text& title, const Text& text) override { Refuse(title, text); }
    void Critical(const Text& title, const Text& text) override { Refuse(title, text); }
    bool YesNo(const Text& title, const Text& text, Stops) override { return Refuse(title, text); }
    bool OkCancel(const Text& title, const Text& text) override { return Refuse(title, text); }
    Answer YesNoCancel(const Text& title, const Text& text) override
    {
        Refuse(title, text);
        return Answer::Cancel;
    }
    void AddStatusLine(const Text&) override {}
    void ShowProgress(std::uint64_t, std::uint64_t) override {}
    void ShowBusyPointer(bool) override {}
    void Beep() override {}
    void YieldToEvents() override {}

private:
    static bool Refuse(const Text& title, const Text& text)
    {
        std::fprintf(stderr, "%s: %s\n", title.c_str(), text.c_str());
        std::exit(EXIT_FAILURE);
    }
};

} // namespace quillon::bench
