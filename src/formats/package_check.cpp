// The reading test of a finished package: every byte that the setup will want is looked at.
#include "formats/package.h"

#include "archive/solid/package_container.h"
#include "formats/package_contents_check.h"

#include "formats/row_safety.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "project/file_rows.h"

namespace quillon {

namespace {

using Faults = std::vector<Text>;

Text RowLabel(const InstallRow& row)
{
    return FileRowKey(row.number) + " '" + row.name + "': ";
}

Text FailureText(const ZipError& error)
{
    if (error.Reason() == ZipError::Kind::WrongPassword)
        return "lösenordet stämmer inte";
    return Text("innehållet är skadat (") + error.what() + ")";
}

Text FailureText(const RunError& error)
{
    return "kan ej läsas (Fel #" + NumberText(error.Number()) + ")";
}

// Runs `read`; the words for what went wrong, or nothing.
template <class Read>
Text FailureOf(Read read)
{
    try {
        read();
        return {};
    } catch (const ZipError& error) {
        return FailureText(error);
    } catch (const RunError& error) {
        return FailureText(error);
    }
}

void CheckSize(const InstallRow& row, std::uint64_t size, Faults& faults)
{
    if (size != row.size)
        faults.push_back(RowLabel(row) + "storleken är " +
                         NumberText(static_cast<std::int64_t>(size)) + " byte i paketet men " +
                         NumberText(static_cast<std::int64_t>(row.size)) + " byte i " +
                         kFileListName + ".");
}

void CheckMissing(const Package& package, std::size_t number, Faults& faults)
{
    const RowBytes& bytes = package.bytes[number];
    // A missing or damaged container is reported once for all of its rows; and a row with a bad
    // name is reported for that, not for its file too.
    const bool isToldAlready = bytes.path.empty() && !package.container;
    if (!isToldAlready)
        faults.push_back(RowLabel(package.rows[number]) + "filen saknas i paketet" +
                         (bytes.path.empty() ? "." : ": '" + bytes.path + "'."));
}

void CheckLooseFile(const FileSystem& files, Package& package, std::size_t number, Faults& faults)
{
    const InstallRow& row = package.rows[number];
    std::uint64_t size = 0;
    const Text failure = FailureOf([&] {
        ExtractRow(files, package, number,
                   [&](std::span<const std::byte> piece) { size += piece.size(); });
    });
    if (failure.empty())
        CheckSize(row, size, faults);
    else
        faults.push_back(RowLabel(row) + failure + ".");
}

// What the setup would refuse to install, or what would lie outside the medium.
void CheckNames(const Package& package, Faults& faults)
{
    const bool isTree = package.setup.project.Media.TargetMedia == Integer(Medium::CdTree);
    for (const InstallRow& row : package.rows)
        for (const Text& fault : {RowNameFaultText(row.name), DestinationFaultText(row.destination),
                                  isTree ? SourceFolderFaultText(row.sourceFolder) : Text()})
            if (!fault.empty())
                faults.push_back(FileRowKey(row.number) + ": " + fault);
}

void CheckRows(const FileSystem& files, Package& package, Faults& faults)
{
    for (std::size_t i = 0; i < package.rows.size(); ++i) {
        const RowBytes& bytes = package.bytes[i];
        if (bytes.place == RowBytes::Place::Missing)
            CheckMissing(package, i, faults);
        else if (bytes.place == RowBytes::Place::LooseFile)
            CheckLooseFile(files, package, i, faults);
        else if (bytes.place == RowBytes::Place::Container)
            CheckSize(package.rows[i], package.container->Entries()[bytes.entry].size, faults);
    }
}

// An entry is unpacked once, however many rows it serves.
void CheckEntries(Container& archive, const char* archiveName, const Text& password, Faults& faults)
{
    for (const ZipEntry& entry : archive.Entries()) {
        const Text failure =
            FailureOf([&] { archive.Extract(entry, password, [](std::span<const std::byte>) {}); });
        if (!failure.empty())
            faults.push_back(Text(archiveName) + ": posten '" + entry.name + "'" +
                             (entry.comment.empty() ? "" : " (" + entry.comment + ")") + ": " +
                             failure + ".");
    }
}

void CheckCount(const Package& package, Faults& faults)
{
    const auto rows = static_cast<Long>(package.rows.size());
    if (package.setup.isWhole && package.setup.Files != rows)
        faults.push_back(Text(kSetupInformationName) + " anger " + NumberText(package.setup.Files) +
                         " filer men " + kFileListName + " har " + NumberText(rows) + " rader.");
}

void CheckDesignContainer(const FileSystem& files, const Package& package, Faults& faults)
{
    const Text path = JoinPath(package.folder, kDesignContainerName);
    if (!files.FileExists(path))
        return; // a setup without pictures and sounds has none
    const Text failure = FailureOf([&] {
        CheckEntries(*OpenAnyContainer(files.OpenInput(path)), kDesignContainerName, {}, faults);
    });
    if (!failure.empty())
        faults.push_back(Text(kDesignContainerName) + ": " + failure + ".");
}

} // namespace

std::vector<Text> VerifyPackage(const FileSystem& files, Package& package)
{
    Faults faults = package.faults;
    CheckCount(package, faults);
    CheckNames(package, faults);
    CheckRows(files, package, faults);
    if (package.container)
        CheckEntries(*package.container, kFileContainerName,
                     package.setup.project.DialogBoxData.CorrectPassword, faults);
    CheckDesignContainer(files, package, faults);
    CheckContents(files, package, faults);
    return faults;
}

} // namespace quillon
