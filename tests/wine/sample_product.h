// A product that a test makes up: some hundred files in folders, names with Swedish letters, an
// empty file, a large one, an empty folder, components, registry and INI lists.
#pragma once

#include "project/records.h"
#include "wine/package.h"

namespace quillon::test {

struct SampleFile {
    std::filesystem::path source; // below drive S:
    std::string destination;      // the whole path on the machine, once installed
    bool isInstalled = true;      // false in a component that is not ticked from the start
    bool isReadOnly = false;
};

class SampleProduct {
public:
    SampleProduct();

    /// The project, to be changed before `Order` saves it.
    Project project;

    /// A file below the main folder, or in the component of that number, with these copy options.
    void Add(const std::string& folder, const std::string& name, const std::string& bytes,
             const std::string& options = {}, int component = 0);

    PackageOrder Order(std::vector<std::string> options);
    const std::vector<SampleFile>& Files() const { return files_; }
    std::filesystem::path Drive() const { return folder_ / "drive"; }

private:
    void Fill();
    void AddFiles();
    void AddRow(FileListRow row, SampleFile file);

    std::filesystem::path folder_;
    std::vector<SampleFile> files_;
};

} // namespace quillon::test
