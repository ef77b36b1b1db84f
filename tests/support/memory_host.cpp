#include "support/memory_host.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace quillon::test {

namespace {

Text KeyOf(const Text& path)
{
    return LowerCase(RemoveLastBackslash(path));
}

Text RootOf(const Text& path)
{
    return LowerCase(path.substr(0, 3));
}

class MemoryInput : public InputFile {
public:
    explicit MemoryInput(std::shared_ptr<std::string> bytes) : bytes_(std::move(bytes)) {}

    std::size_t Read(std::span<std::byte> buffer) override
    {
        const std::size_t left = position_ < bytes_->size() ? bytes_->size() - position_ : 0;
        const std::size_t count = std::min(left, buffer.size());
        if (count > 0)
            std::memcpy(buffer.data(), bytes_->data() + position_, count);
        position_ += count;
        return count;
    }
    void Seek(std::uint64_t position) override { position_ = position; }
    std::uint64_t Size() const override { return bytes_->size(); }

private:
    std::shared_ptr<std::string> bytes_;
    std::uint64_t position_ = 0;
};

} // namespace

class MemoryOutput : public OutputFile {
public:
    MemoryOutput(MemoryFiles& files, Text path, std::shared_ptr<std::string> bytes)
        : files_(files), path_(std::move(path)), bytes_(std::move(bytes))
    {
    }

    void Write(std::span<const std::byte> bytes) override
    {
        files_.BeforeWrite(path_, bytes.size());
        bytes_->append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        files_.At(path_).status.size = bytes_->size();
        files_.At(path_).isFlushed = false;
    }
    void WriteAt(std::uint64_t position, std::span<const std::byte> bytes) override
    {
        files_.BeforeWrite(path_, 0);
        ASSERT_LE(position + bytes.size(), bytes_->size());
        std::memcpy(bytes_->data() + position, bytes.data(), bytes.size());
    }
    std::uint64_t Position() const override { return bytes_->size(); }
    void Flush() override
    {
        files_.BeforeWrite(path_, 0);
        files_.At(path_).isFlushed = true;
    }
    void Close() override {}

private:
    MemoryFiles& files_;
    Text path_;
    std::shared_ptr<std::string> bytes_;
};

class MemoryLock : public FileLock {
public:
    MemoryLock(MemoryFiles& files, Text path) : files_(files), path_(std::move(path))
    {
        files_.locked.insert(KeyOf(path_));
        files_.Put(path_, "");
    }
    ~MemoryLock() override
    {
        files_.locked.erase(KeyOf(path_));
        files_.nodes.erase(KeyOf(path_));
    }
    MemoryLock(const MemoryLock&) = delete;
    MemoryLock& operator=(const MemoryLock&) = delete;

private:
    MemoryFiles& files_;
    Text path_;
};

void MemoryFiles::Put(const Text& path, std::string bytes, LocalTime modified)
{
    PutFolder(ExtractDirectory(path));
    FileStatus status;
    status.size = bytes.size();
    status.modified = modified;
    nodes[KeyOf(path)] = {path, std::make_shared<std::string>(std::move(bytes)), status, false};
}

void MemoryFiles::PutFolder(const Text& path)
{
    const Text folder = RemoveLastBackslash(path);
    if (folder.size() < 3 || nodes.count(KeyOf(folder)) > 0)
        return;
    PutFolder(ExtractDirectory(folder));
    FileStatus status;
    status.isFolder = true;
    nodes[KeyOf(folder)] = {folder, nullptr, status, false};
}

std::string MemoryFiles::Get(const Text& path) const
{
    const auto found = nodes.find(KeyOf(path));
    if (found == nodes.end() || !found->second.bytes) {
        ADD_FAILURE() << "no file at " << path;
        return {};
    }
    return *found->second.bytes;
}

MemoryFiles::Node& MemoryFiles::At(const Text& path)
{
    return nodes.at(KeyOf(path));
}

void MemoryFiles::FailFromWrite(int n, int errorNumber)
{
    writesUntilFailure_ = n;
    failureNumber_ = errorNumber;
}

void MemoryFiles::RefuseOutput(const Text& path, int errorNumber)
{
    refused_[KeyOf(path)] = errorNumber;
}

bool MemoryFiles::FileExists(const Text& path) const
{
    const auto found = nodes.find(KeyOf(path));
    return found != nodes.end() && found->second.bytes;
}

bool MemoryFiles::DirExists(const Text& path) const
{
    const auto found = nodes.find(KeyOf(path));
    return (found != nodes.end() && !found->second.bytes) ||
           (KeyOf(path).size() == 2 && path[1] == ':');
}

const MemoryFiles::Node& MemoryFiles::Existing(const Text& path) const
{
    const auto found = nodes.find(KeyOf(path));
    if (found != nodes.end())
        return found->second;
    const bool hasFolder = DirExists(ExtractDirectory(path));
    throw RunError(hasFolder ? ErrorNumber::kFileNotFound : ErrorNumber::kPathNotFound, path);
}

FileStatus MemoryFiles::Status(const Text& path) const
{
    if (nodes.count(KeyOf(path)) == 0 && DirExists(path))
        return {.isFolder = true}; // a drive's root, which exists without an entry
    return Existing(path).status;
}

std::vector<FolderEntry> MemoryFiles::List(const Text& folder) const
{
    if (!DirExists(folder))
        throw RunError(ErrorNumber::kPathNotFound, folder);
    if (const auto found = nodes.find(KeyOf(folder));
        found != nodes.end() && found->second.unreadable)
        throw RunError(ErrorNumber::kPermissionDenied, folder);
    std::vector<FolderEntry> entries;
    const Text inside = KeyOf(folder) + "\\";
    for (const auto& [key, node] : nodes) {
        const bool below = key.size() > inside.size() && key.compare(0, inside.size(), inside) == 0;
        if (below && key.find('\\', inside.size()) == Text::npos)
            entries.push_back({ExtractFilename(node.path), node.status});
    }
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry& a, const FolderEntry& b) { return a.name < b.name; });
    return entries;
}

std::unique_ptr<InputFile> MemoryFiles::OpenInput(const Text& path) const
{
    const Node& node = Existing(path);
    if (!node.bytes)
        throw RunError(ErrorNumber::kPathFileAccess, path);
    if (node.unreadable)
        throw RunError(ErrorNumber::kPermissionDenied, path);
    return std::make_unique<MemoryInput>(node.bytes);
}

std::unique_ptr<OutputFile> MemoryFiles::OpenOutput(const Text& path)
{
    if (const auto found = refused_.find(KeyOf(path)); found != refused_.end())
        throw RunError(found->second, path);
    if (!DirExists(ExtractDirectory(path)))
        throw RunError(ErrorNumber::kPathNotFound, path);
    if (DirExists(path))
        throw RunError(ErrorNumber::kPathFileAccess, path);
    if (FileExists(path) && At(path).status.isReadOnly)
        throw RunError(ErrorNumber::kPathFileAccess, path);
    Put(path, "");
    return std::make_unique<MemoryOutput>(*this, path, At(path).bytes);
}

// An output that is still there shares the bytes.
void MemoryFiles::RemoveAbandoned(const Text& path)
{
    if (FileExists(path) && At(path).bytes.use_count() == 1)
        nodes.erase(KeyOf(path));
}

std::unique_ptr<FileLock> MemoryFiles::Lock(const Text& path, LockWait wait)
{
    if (locked.count(KeyOf(path)) > 0) {
        EXPECT_EQ(wait, LockWait::None) << "nobody will ever let go of " << path;
        return nullptr;
    }
    if (!DirExists(ExtractDirectory(path)))
        throw RunError(ErrorNumber::kPathNotFound, path);
    return std::make_unique<MemoryLock>(*this, path);
}

bool MemoryFiles::DirCreate(const Text& path)
{
    if (refuseFolders || FileExists(path))
        return false;
    PutFolder(path);
    return true;
}

void MemoryFiles::CopyContent(const Text& from, const Text& to)
{
    const auto input = OpenInput(from);
    const auto output = OpenOutput(to);
    std::vector<std::byte> bytes(input->Size());
    input->Read(bytes);
    output->Write(bytes);
    output->Close();
    SetModified(to, Status(from).modified);
}

void MemoryFiles::RemoveFile(const Text& path)
{
    if (!Existing(path).bytes)
        throw RunError(ErrorNumber::kPathFileAccess, path);
    nodes.erase(KeyOf(path));
}

void MemoryFiles::RemoveFolder(const Text& path)
{
    if (Existing(path).bytes || !List(path).empty())
        throw RunError(ErrorNumber::kPathFileAccess, path);
    nodes.erase(KeyOf(path));
}

void MemoryFiles::Rename(const Text& from, const Text& to)
{
    Node node = Existing(from);
    nodes.erase(KeyOf(from));
    node.path = to;
    nodes[KeyOf(to)] = node;
}

void MemoryFiles::Replace(const Text& from, const Text& to)
{
    BeforeWrite(to, 0);
    if (const auto found = refused_.find(KeyOf(to)); found != refused_.end())
        throw RunError(found->second, to);
    if (FileExists(to) && At(to).status.isReadOnly)
        throw RunError(ErrorNumber::kPathFileAccess, to);
    Rename(from, to);
}

void MemoryFiles::SetModified(const Text& path, const LocalTime& time)
{
    Existing(path);
    At(path).status.modified = time;
}

void MemoryFiles::SetReadOnly(const Text& path, bool readOnly)
{
    Existing(path);
    At(path).status.isReadOnly = readOnly;
}

std::uint64_t MemoryFiles::Used(const Text& root) const
{
    std::uint64_t used = 0;
    for (const auto& [key, node] : nodes)
        if (node.bytes && RootOf(key) == root)
            used += node.bytes->size();
    return used;
}

std::uint64_t MemoryFiles::FreeSpace(const Text& folder) const
{
    const auto found = capacities.find(RootOf(folder));
    if (found == capacities.end())
        return std::uint64_t(1) << 40U;
    const std::uint64_t used = Used(found->first);
    return used < found->second ? found->second - used : 0;
}

DriveKind MemoryFiles::DriveType(const Text& root) const
{
    const auto found = driveKinds.find(LowerCase(root));
    return found == driveKinds.end() ? DriveKind::Fixed : found->second;
}

Text MemoryFiles::GetVolumeName(const Text&) const
{
    return "DISK";
}

void MemoryFiles::BeforeWrite(const Text& path, std::uint64_t grows)
{
    if (--writesUntilFailure_ <= 0)
        throw RunError(failureNumber_, path);
    if (grows > FreeSpace(path))
        throw RunError(ErrorNumber::kDiskFull, path);
}

std::optional<Text> FixedMachine::ReadRegistryValue(RegistryRoot root, const Text& subKey,
                                                    const Text& valueName) const
{
    const auto found = registry.find({root, subKey, valueName});
    return found == registry.end() ? std::nullopt : std::optional(found->second);
}

std::uint32_t FixedMachine::Random(std::uint32_t below)
{
    return nextRandom++ % below;
}

void FixedMachine::StartProgram(const Text& program, const Text& arguments)
{
    if (startFailure != 0)
        throw RunError(startFailure, program);
    started.emplace_back(program, arguments);
}

void FixedMachine::OpenDocument(const Text& path)
{
    StartProgram(path, "");
}

void FixedMachine::EditTextFile(const Text& path)
{
    StartProgram("NOTEPAD.EXE", path);
}

} // namespace quillon::test
