#include "formats/package_manifest.h"

#include "formats/digest_text.h"
#include "formats/manifest_line.h"
#include "formats/package_files.h"
#include "helpers/utf8.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <optional>

namespace quillon {

namespace {

constexpr const char* kUnfinishedName = "PACKAGE.TMP";
// A hundred times what the longest list of files needs; what is longer is none.
constexpr std::uint64_t kMaxManifestSize = 512U * 1024 * 1024;
constexpr std::size_t kPieceSize = 64 * 1024;

bool StaysInPackage(std::string_view name)
{
    while (true) {
        const std::size_t end = name.find('/');
        if (FaultOfName(name.substr(0, end)) != PathFault::None)
            return false;
        if (end == name.npos)
            return true;
        name.remove_prefix(end + 1);
    }
}

} // namespace

PackageManifest ReadManifest(std::string_view bytes)
{
    PackageManifest manifest;
    manifest.state =
        bytes.empty() ? PackageManifest::State::Unfinished : PackageManifest::State::Whole;
    while (!bytes.empty()) {
        const auto line = ParseManifestLine(bytes);
        const Text name = line ? ReplaceAll(line->name, "/", "\\") : Text();
        const bool isRead = line && IsUtf8(line->name) && StaysInPackage(line->name) &&
                            manifest.names.insert(LowerCase(name)).second;
        if (!isRead) {
            manifest.state = PackageManifest::State::Damaged;
            break;
        }
        manifest.lines.push_back({name, DigestOfDigits(line->digits)});
    }
    return manifest;
}

PackageManifest ReadPackageManifest(const FileSystem& files, const Text& folder)
{
    const Text path = JoinPath(folder, kManifestName);
    if (!files.FileExists(path))
        return {};
    PackageManifest manifest{.state = PackageManifest::State::Damaged};
    RunErrorNumber([&] {
        if (files.Status(path).size <= kMaxManifestSize)
            manifest = ReadManifest(ReadWholeFile(files, path));
    });
    return manifest;
}

void WriteUnfinishedManifest(FileSystem& files, const Text& folder)
{
    files.OpenOutput(JoinPath(folder, kManifestName))->Close();
}

void WritePackageManifest(FileSystem& files, const Text& folder, std::vector<ManifestLine> lines)
{
    std::ranges::sort(lines, {}, &ManifestLine::name);
    std::string bytes;
    for (const ManifestLine& line : lines)
        bytes += DigestText(line.digest) + "  " + ReplaceAll(line.name, "\\", "/") + "\n";
    const Text unfinished = JoinPath(folder, kUnfinishedName);
    WriteWholeFile(files, unfinished, bytes);
    files.Rename(unfinished, JoinPath(folder, kManifestName));
}

Sha256Digest DigestOfFile(const FileSystem& files, const Text& path, const BytesRead& onBytes)
{
    return DigestOf(*files.OpenInput(path), onBytes);
}

Sha256Digest DigestOf(InputFile& file, const BytesRead& onBytes)
{
    Sha256 hash;
    std::vector<std::byte> piece(kPieceSize);
    while (const std::size_t got = file.Read(piece)) {
        hash.Add(std::span(piece).first(got));
        if (onBytes)
            onBytes(got);
    }
    return hash.Finish();
}

FileFault CompareFile(const FileSystem& files, const Text& folder, const ManifestLine& line,
                      const BytesRead& onBytes)
{
    const Text path = JoinPath(folder, line.name);
    if (!files.FileExists(path))
        return FileFault::Missing;
    std::unique_ptr<InputFile> file;
    if (RunErrorNumber([&] { file = files.OpenInput(path); }) != ErrorNumber::kNone)
        return FileFault::Unreadable;
    return CompareFile(*file, line, onBytes);
}

FileFault CompareFile(InputFile& file, const ManifestLine& line, const BytesRead& onBytes)
{
    std::optional<Sha256Digest> digest;
    RunErrorNumber([&] { digest = DigestOf(file, onBytes); });
    if (!digest)
        return FileFault::Unreadable;
    return *digest == line.digest ? FileFault::None : FileFault::Different;
}

} // namespace quillon
