// A folder on the real disk that is removed when the test ends, and simple functions to put files
// into it that do not use the code under test.
#pragma once

#include <filesystem>
#include <string>

namespace quillon::test {

class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// The host path of the folder, or of something in it.
    std::string Path(const std::string& inside = {}) const;
    /// A file with all folders above it.
    void Put(const std::string& inside, const std::string& bytes) const;
    void PutFolder(const std::string& inside) const;
    /// The bytes of a file; a test failure where there is none.
    std::string Get(const std::string& inside) const;
    bool Has(const std::string& inside) const;

private:
    std::filesystem::path folder_;
};

} // namespace quillon::test
