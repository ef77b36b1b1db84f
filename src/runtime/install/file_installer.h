// Puts the planned files in their places, one after the other: writes each beside its place first,
// decides about a file that is already there by the row's copy options, and exchanges the two.
#pragma once

#include "helpers/sha256.h"
#include "runtime/install/background_writer.h"
#include "runtime/install/copy_decision.h"
#include "runtime/install/install.h"

namespace quillon {

class FileInstaller {
public:
    FileInstaller(const InstallInput& input, InstallTransaction& transaction,
                  InstallJournal& journal);

    void InstallAll();

    /// What is to be registered when everything is in its place, in the order of the rows.
    const std::vector<Text>& FilesToRegister() const { return toRegister_; }
    const std::vector<Text>& FilesToRegisterAtRestart() const { return toRegisterAtRestart_; }
    const std::vector<PlannedFile>& Fonts() const { return fonts_; }

    /// The files that are the product's own now, whether newly written or kept from an earlier
    /// version of it.
    std::uint64_t InstalledBytes() const { return installed_; }

private:
    enum class Outcome { Kept, Written, AtRestart };

    Outcome InstallOne(const PlannedFile& file);
    std::optional<FileStatus> StatusAt(const Text& path) const;
    bool IsWanted(const PlannedFile& file, const FileStatus& status, const Text& staged);
    CopyDecision AskWhetherToReplace(const Text& path);
    Text Stage(const PlannedFile& file);
    bool Put(const PlannedFile& file, const Text& staged, bool replaces);
    void CountSharedFile(const PlannedFile& file, bool existed);
    void NoteContent(const PlannedFile& file);
    void NoteWhatFollows(const PlannedFile& file, Outcome outcome);

    const InstallInput& input_;
    InstallTransaction& transaction_;
    InstallJournal& journal_;
    std::vector<Text> toRegister_;
    std::vector<Text> toRegisterAtRestart_;
    std::vector<PlannedFile> fonts_;
    BackgroundWriter writer_;
    Sha256Digest digest_{}; // of the file that was staged last
    std::uint64_t done_ = 0;
    std::uint64_t total_ = 0;
    std::uint64_t installed_ = 0;
};

/// The version of a program or library; empty where it has none.
Text VersionOfFile(const FileSystem& files, const Text& path);

} // namespace quillon
