// Finds and reads the bytes of each row, whatever the medium: an archive on a CD, an archive cut to
// fit floppy disks, files kept one by one, or the tree of the sources.
#pragma once

#include "formats/install_row.h"
#include "formats/package_manifest.h"
#include "formats/setup_information.h"
#include "platform/ask.h"
#include "platform/host.h"
#include "runtime/log/action_log.h"
#include "runtime/package/container.h"
#include "runtime/texts/language_file.h"

#include <map>

namespace quillon {

struct PackageInput {
    Host& host;
    Ask& ask;
    ActionLog& log;
    const LanguageTexts& texts;
    const SetupInformation& setup;
    const std::vector<InstallRow>& rows;
    const OpenContainer& openContainer;
    Text packageFolder;
    Text workFolder; // private to this installation
    Text password;
    bool silent = false;
    const PackageManifest* manifest = nullptr; // of files that have been compared with it
};

class PackageReader {
public:
    /// Finds every row. Throws `SetupFailure` where the package lacks one.
    /// `archive`: of the package's files, where it is open already.
    explicit PackageReader(const PackageInput& input, std::unique_ptr<InputFile> archive = nullptr);
    ~PackageReader();
    PackageReader(const PackageReader&) = delete;
    PackageReader& operator=(const PackageReader&) = delete;

    /// Reads everything once: all lengths, and every CRC in an archive that was not compared with a
    /// manifest. Throws `ZipError`, or `SetupFailure`.
    void CheckEverything();

    /// False on a row that makes a folder, and on one that never had a source.
    bool HasBytes(const InstallRow& row) const;
    /// Where the bytes lie in a container that is unpacked fastest in its own order; 0 elsewhere.
    std::uint64_t Position(const InstallRow& row) const;
    LocalTime Modified(const InstallRow& row) const;
    void Extract(const InstallRow& row, const ZipReader::Sink& sink) const;
    /// Of a file that lies by itself and was read long after the package was checked: throws
    /// `SetupFailure` where its digest is not the manifest's.
    void CheckDigest(const InstallRow& row, const Sha256Digest& digest) const;

private:
    void FindInContainerOrRefuse();
    void FindInContainer();
    void FindByThemselves();
    std::unique_ptr<InputFile> Archive();
    Text ContainerPath();
    Text JoinDisks(int disks);
    void AppendDisk(int disk, OutputFile& joined);
    void CheckPiece(int disk, const Sha256Digest& digest) const;
    bool HasManifest() const;
    Text PathOf(const InstallRow& row) const;

    PackageInput input_;
    std::unique_ptr<InputFile> archive_; // until the container takes it
    std::unique_ptr<Container> container_;
    Text joinedFile_;
    // By the rows' numbers. A row whose file lies by itself has no entry.
    std::map<int, const ZipEntry*> entries_;
    std::map<int, LocalTime> dates_; // where the entry has another one
    // Of the files outside the archives, by lower-cased name.
    std::map<Text, const Sha256Digest*> digests_;
};

bool IsEmptyFolderRow(const InstallRow& row);

} // namespace quillon
