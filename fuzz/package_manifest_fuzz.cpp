// PACKAGE.SHA256 of any content: no name leads out of the package or comes twice, and what is read
// from a whole one and written again is the same.
#include "formats/package_manifest.h"

#include "formats/package_files.h"
#include "require.h"
#include "support/one_file_host.h"

using namespace quillon;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const PackageManifest manifest = ReadManifest({reinterpret_cast<const char*>(bytes), size});
    Require((manifest.state == PackageManifest::State::Unfinished) == (size == 0));
    Require(manifest.names.size() >= manifest.lines.size());
    for (const ManifestLine& line : manifest.lines) {
        Require(manifest.Names(line.name));
        Require(!line.name.empty() && line.name.find_first_of("/:") == Text::npos);
        Require(("\\" + line.name + "\\").find("\\..\\") == Text::npos && line.name[0] != '\\');
    }
    if (manifest.state != PackageManifest::State::Whole)
        return 0;
    test::OneFile files({});
    WritePackageManifest(files, "P:", manifest.lines);
    std::vector<ManifestLine> sorted = manifest.lines;
    std::ranges::sort(sorted, {}, &ManifestLine::name);
    Require(ReadManifest(files.bytes).lines == sorted);
    return 0;
}
