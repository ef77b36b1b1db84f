#include "runtime/package/package_check.h"

#include "formats/package.h"
#include "formats/package_contents.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/package/package_reader.h"
#include "runtime/texts/failure_reason.h"

#include <algorithm>

namespace quillon {

namespace {

class PackageCheck {
public:
    explicit PackageCheck(const PackageCheckInput& input) : input_(input) {}

    void Run()
    {
        CheckManifest();
        CheckListed();
        for (const ManifestLine& line : input_.manifest.lines)
            if (!IsOnLaterDisk(line.name) && !MayBeMissing(line.name))
                total_ += SizeOf(line.name);
        for (const ManifestLine& line : input_.manifest.lines)
            if (!IsOnLaterDisk(line.name) && !MayBeMissing(line.name))
                CheckFile(line);
    }

private:
    [[noreturn]] void Refuse(const Reason& reason) const
    {
        throw DamagedPackage(input_.texts, reason);
    }

    void CheckManifest() const
    {
        if (input_.manifest.state == PackageManifest::State::Unfinished)
            Refuse({Message::PackageFileIncomplete, kManifestName});
        if (input_.manifest.state == PackageManifest::State::Damaged)
            Refuse({Message::PackageFileDamaged, kManifestName});
    }

    // A manifest that has lost lines must not hide that the files in them are missing.
    void CheckListed() const
    {
        std::vector<Text> needed = FixedFilesOf(input_.setup, input_.rows);
        const std::vector<Text> pieces = ContainerPieces(input_.setup, input_.rows);
        needed.insert(needed.end(), pieces.begin(), pieces.end());
        if (!UsesContainer(input_.setup))
            for (const InstallRow& row : input_.rows)
                if (!IsEmptyFolderRow(row) && !MayLackSource(row))
                    needed.push_back(LooseFileName(input_.setup, row));
        for (const Text& name : needed)
            if (!input_.manifest.Names(name))
                Refuse({Message::PackageFilesDiffer, name, kManifestName});
    }

    bool IsOnLaterDisk(const Text& name) const
    {
        return input_.setup.project.Media.TargetMedia == int(Medium::Floppy) &&
               name.find('\\') != Text::npos &&
               EqualIgnoreCase(ExtractFilename(name), kFileContainerName);
    }

    bool MayBeMissing(const Text& name) const
    {
        return OnlyStartsTheSetup(input_.setup, name) &&
               !input_.files.FileExists(JoinPath(input_.packageFolder, name));
    }

    std::uint64_t SizeOf(const Text& name) const
    {
        std::uint64_t size = 0;
        RunErrorNumber(
            [&] { size = input_.files.Status(JoinPath(input_.packageFolder, name)).size; });
        return size;
    }

    void CheckFile(const ManifestLine& line)
    {
        const BytesRead onBytes = [&](std::size_t count) {
            done_ += count;
            input_.ask.ShowProgress(done_, total_);
            input_.ask.ProcessEvents();
        };
        const bool isOpen =
            input_.archive != nullptr && EqualIgnoreCase(line.name, kFileContainerName);
        const FileFault fault =
            isOpen ? CompareFile(*input_.archive, line, onBytes)
                   : CompareFile(input_.files, input_.packageFolder, line, onBytes);
        if (fault == FileFault::Different)
            Refuse({Message::PackageFileDamaged, line.name});
        if (fault != FileFault::None)
            Refuse({Message::PackageFileMissing, line.name});
    }

    const PackageCheckInput& input_;
    std::uint64_t total_ = 0;
    std::uint64_t done_ = 0;
};

} // namespace

void CheckAgainstManifest(const PackageCheckInput& input)
{
    if (input.manifest.state == PackageManifest::State::Missing)
        input.log.Line(Message::LogNoManifest, kManifestName);
    else
        PackageCheck(input).Run();
}

} // namespace quillon
