// All that a run of Create needs, in memory: a small project without faults, a tool folder with
// stand-ins for the runtime's programs, and a user with prepared answers.
#pragma once

#include "builder/create.h"
#include "full_project.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <deque>
#include <optional>
#include <vector>

namespace quillon::test {

/// Further disks are the folders C:\disk2, C:\disk3 and so on, as many as are laid ready.
class FolderDisks : public DiskSource {
public:
    explicit FolderDisks(MemoryFiles& files) : files_(files) {}

    std::optional<Text> NextDisk(int number) override;
    std::uint64_t Capacity(const Text& folder) const override;

    int lastDisk = 99;
    std::uint64_t capacity = 1'000'000;

private:
    MemoryFiles& files_;
};

class CreateDesk {
public:
    CreateDesk();

    /// A whole run. The boxes must come in this order, and no others.
    CreateResult Create(std::deque<ExpectedBox> script = {});
    /// A run in which a single step or check can be called.
    template <class Work>
    auto With(Work work, std::deque<ExpectedBox> script = {});

    FileListRow& AddFile(const Text& name, const Text& bytes = "bytes",
                         const Text& destination = "%DESTDIR");
    /// Chooses the medium with C:\Ut as destination.
    void Choose(Medium medium);
    bool Has(const Text& name) const { return machine.files.FileExists("C:\\Ut\\" + name); }
    std::string Get(const Text& name) const { return machine.files.Get("C:\\Ut\\" + name); }
    /// The names of all files below C:\Ut, with their folders.
    std::vector<Text> Package() const;

    MemoryHost machine;
    Project project;
    OpenProjectState state;
    CreateForm form;
    CreateOptions options = DefaultCreateOptions("C:\\Quillon");
    FolderDisks disks{machine.files};

    // Of the last run.
    std::vector<Text> statusLines;
    std::vector<Ask::Stops> stops;
    int beeps = 0;
    std::optional<RunError> failure;
    std::optional<CompressionFailure> compressionFailure;
    bool CreateFailed = false;
    Integer FloppiesUsed = 0;
};

template <class Work>
auto CreateDesk::With(Work work, std::deque<ExpectedBox> script)
{
    ScriptedAsk ask(std::move(script));
    CompressionInterface compression(machine.host, ask, disks);
    CreateRun run{.project = project,
                  .state = state,
                  .form = form,
                  .options = options,
                  .host = machine.host,
                  .ask = ask,
                  .compression = compression,
                  .DestDir = "C:\\Ut"};
    const auto result = work(run);
    statusLines = ask.statusLines;
    stops = ask.stops;
    beeps = ask.beeps;
    failure = run.failure;
    compressionFailure = run.compressionFailure;
    CreateFailed = run.CreateFailed;
    FloppiesUsed = run.FloppiesUsed;
    return result;
}

} // namespace quillon::test
