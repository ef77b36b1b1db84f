// Reads archives with our own reader, and with the programs that others open them with.
#pragma once

#include "archive/zip_reader.h"

#include <map>
#include <string>

namespace quillon::test {

/// A folder on the real disk that is removed after the test.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& Path() const { return path_; }
    std::string Put(const std::string& name, const std::string& bytes) const;

private:
    std::string path_;
};

struct Outcome {
    int exitCode = -1;
    std::string output;
};

/// Runs a shell command; returns the output of both channels.
Outcome RunCommand(const std::string& command);

/// `7z t` and `unzip -t` find nothing to complain about. Without a password unzip is asked too; it
/// knows no AES.
void ExpectOtherProgramsTest(const std::string& archive, const std::string& password = {});

/// All entries as 7z unpacks them, by name.
std::map<std::string, std::string> UnpackBy7z(const std::string& archive,
                                              const std::string& password = {});

ZipReader OpenArchive(const std::string& archive);

/// All entries as our reader unpacks them, by name.
std::map<std::string, std::string> UnpackAll(const std::string& archive,
                                             const std::string& password = {});

} // namespace quillon::test
