#include "builder/archive_tools.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

namespace quillon::test {

namespace {

class BytesInput : public InputFile {
public:
    explicit BytesInput(std::string bytes) : bytes_(std::move(bytes)) {}

    std::size_t Read(std::span<std::byte> buffer) override
    {
        const std::size_t left = position_ < bytes_.size() ? bytes_.size() - position_ : 0;
        const std::size_t count = std::min(left, buffer.size());
        std::memcpy(buffer.data(), bytes_.data() + (count > 0 ? position_ : 0), count);
        position_ += count;
        return count;
    }
    void Seek(std::uint64_t position) override { position_ = position; }
    std::uint64_t Size() const override { return bytes_.size(); }

private:
    std::string bytes_;
    std::uint64_t position_ = 0;
};

} // namespace

TemporaryFolder::TemporaryFolder()
{
    std::string pattern = std::filesystem::temp_directory_path() / "quillon_test_XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr)
        ADD_FAILURE() << "no temporary folder";
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::Put(const std::string& name, const std::string& bytes) const
{
    std::string path = path_ + "/" + name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

Outcome RunCommand(const std::string& command)
{
    Outcome outcome;
    FILE* pipe = popen((command + " 2>&1 </dev/null").c_str(), "r");
    if (pipe == nullptr)
        return outcome;
    std::array<char, 4096> buffer{};
    for (std::size_t got = 1; got > 0;) {
        got = fread(buffer.data(), 1, buffer.size(), pipe);
        outcome.output.append(buffer.data(), got);
    }
    const int status = pclose(pipe);
    outcome.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

void ExpectOtherProgramsTest(const std::string& archive, const std::string& password)
{
    const TemporaryFolder folder;
    const std::string path = folder.Put("a.zip", archive);
    const Outcome by7z = RunCommand("7z t '-p" + password + "' " + path);
    EXPECT_EQ(by7z.exitCode, 0) << by7z.output;
    EXPECT_EQ(by7z.output.find("WARNING"), std::string::npos) << by7z.output;
    if (!password.empty())
        return;
    const Outcome byUnzip = RunCommand("unzip -tqq " + path);
    EXPECT_EQ(byUnzip.exitCode, 0) << byUnzip.output;
}

std::map<std::string, std::string> UnpackBy7z(const std::string& archive,
                                              const std::string& password)
{
    const TemporaryFolder folder;
    const std::string target = folder.Path() + "/out/";
    const Outcome unpacked = RunCommand("LC_ALL=C.UTF-8 7z x -y '-p" + password + "' -o" + target +
                                        " " + folder.Put("a.zip", archive));
    EXPECT_EQ(unpacked.exitCode, 0) << unpacked.output;
    std::map<std::string, std::string> contents;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(target)) {
        if (!entry.is_regular_file())
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        contents[entry.path().string().substr(target.size())] = {
            std::istreambuf_iterator<char>(file), {}};
    }
    return contents;
}

ZipReader OpenArchive(const std::string& archive)
{
    return ZipReader(std::make_unique<BytesInput>(archive));
}

std::map<std::string, std::string> UnpackAll(const std::string& archive,
                                             const std::string& password)
{
    ZipReader reader = OpenArchive(archive);
    std::map<std::string, std::string> contents;
    for (const ZipEntry& entry : reader.Entries()) {
        std::string& content = contents[entry.name];
        reader.Extract(entry, password, [&](std::span<const std::byte> bytes) {
            content.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        });
    }
    return contents;
}

} // namespace quillon::test
