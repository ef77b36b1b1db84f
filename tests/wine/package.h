// Packages made by quillonc, as the tests install them.
#pragma once

#include "wine/run_program.h"
#include "wine/wine.h"

namespace quillon::test {

struct PackageOrder {
    std::filesystem::path project;
    std::filesystem::path drive; // what drive S: of the project is
    std::vector<std::string> options;
};

/// Makes a package in a new folder that Wine can see; for 64-bit Wine it carries the runtime of
/// that kind. A Create that fails fails the test.
std::filesystem::path MakePackage(const PackageOrder& order);

/// The example as the build has staged it.
PackageOrder ExampleOrder();

std::string ReadBytes(const std::filesystem::path& path);
void WriteBytes(const std::filesystem::path& path, const std::string& bytes);

/// Lists all files of a package again, as a user who changes one by hand does.
void WriteManifest(const std::filesystem::path& package);

/// Replaces a key's line in QNSETUP.INF, and lists the package's files again.
void ChangeSetupKey(const std::filesystem::path& package, const std::string& key,
                    const std::string& value);

/// Fields of the rows of FILELIST.INF in order: name, destination, size, source folder.
struct PackagedRow {
    std::string name;
    std::string destination;
    std::string sourceFolder;
};
std::vector<PackagedRow> PackagedRows(const std::filesystem::path& package);

} // namespace quillon::test
