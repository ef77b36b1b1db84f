// One run of Create: what its checks and steps share.
#pragma once

#include "builder/compression_interface.h"
#include "builder/create_form.h"
#include "builder/create_options.h"
#include "formats/package_manifest.h"
#include "platform/run_error.h"

#include <optional>

namespace quillon {

/// Whether a check lets Create go on. A check that stops has shown its box.
enum class Check { Passed, Stopped };

/// Whether the pipeline goes on after a step. A step that stops it has shown why.
enum class Step { GoOn, Stop };

struct Signing;

struct CreateRun {
    Project& project;
    OpenProjectState& state;
    CreateForm& form;
    const CreateOptions& options;
    Host& host;
    Ask& ask;
    CompressionInterface& compression;
    DesignSurface surface = {};

    Text DestDir = {};
    // A compression failed; the pipeline goes on and reports it at its end.
    bool CreateFailed = false;
    Integer FloppiesUsed = 0;
    Long FilesInList = 0;

    // The rows of the file list are in another order than before.
    bool isListSorted = false;
    // The user cancelled at a question in the middle of the pipeline.
    bool isCancelled = false;
    // The package lacks something although the status lines end as after a success.
    bool isIncomplete = false;
    // The failure of the machine, for status lines that do not name the file.
    std::optional<RunError> failure = {};
    // The same for a container, whose status lines show a number only.
    std::optional<CompressionFailure> compressionFailure = {};
    // Which program could not be signed, and why; a sentence.
    Text signingFailure = {};

    // Where the files are made while an older package is in the destination; empty otherwise.
    Text stagingFolder = {};
    // The files of the package so far, relative to its folder; for a CD tree without the project's
    // files.
    std::vector<Text> packageFiles = {};
    // The pieces of the container where it was cut: their disks may be out of the drive by now.
    std::vector<ManifestLine> piecesOnDisks = {};

    // What signs the programs of the package; null where the caller can't sign.
    Signing* signing = nullptr;

    const Text& BuildFolder() const { return stagingFolder.empty() ? DestDir : stagingFolder; }
    Text InDestination(const Text& name) const { return BuildFolder() + "\\" + name; }
};

} // namespace quillon
