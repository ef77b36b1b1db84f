#include "runtime/support/setup_fixture.h"

#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "runtime/command_line/answer_file.h"
#include "runtime/uninstall/uninstall.h"

namespace quillon::test {

namespace {

constexpr const char* kPackageFolder = "D:\\Paket";
constexpr const char* kWorkFolder = "W:\\Arbete";
constexpr const char* kLogFile = "L:\\logg.txt";

} // namespace

std::unique_ptr<OutputFile> FailingFiles::OpenOutput(const Text& path)
{
    BeforeChange(path);

    class Output : public OutputFile {
    public:
        Output(std::unique_ptr<OutputFile> file, FailingFiles& files, Text path)
            : file_(std::move(file)), files_(files), path_(std::move(path))
        {
        }
        void Write(std::span<const std::byte> bytes) override
        {
            files_.BeforeChange(path_);
            file_->Write(bytes);
        }
        void WriteAt(std::uint64_t position, std::span<const std::byte> bytes) override
        {
            files_.BeforeChange(path_);
            file_->WriteAt(position, bytes);
        }
        std::uint64_t Position() const override { return file_->Position(); }
        void Flush() override
        {
            files_.BeforeChange(path_);
            file_->Flush();
        }
        void Close() override
        {
            files_.BeforeChange(path_);
            file_->Close();
        }

    private:
        std::unique_ptr<OutputFile> file_;
        FailingFiles& files_;
        Text path_;
    };
    return std::make_unique<Output>(files_.OpenOutput(path), *this, path);
}

void FailingFiles::BeforeChange(const Text& path)
{
    if (path != kLogFile)
        beforeChange();
}

void FailingFiles::RemoveFile(const Text& path)
{
    BeforeChange(path);
    if (inUse.count(path) > 0)
        throw RunError(ErrorNumber::kFileInUse, path);
    if (running.count(path) > 0)
        throw RunError(ErrorNumber::kPermissionDenied, path);
    files_.RemoveFile(path);
}

void FailingFiles::Rename(const Text& from, const Text& to)
{
    BeforeChange(from);
    // Windows names the new place in its refusal.
    if (inUse.count(from) > 0)
        throw RunError(ErrorNumber::kFileInUse, to);
    if (withoutRights.count(from) > 0)
        throw RunError(ErrorNumber::kPermissionDenied, to);
    files_.Rename(from, to);
}

MemoryContainer::MemoryContainer(std::vector<Source> sources, int damagedEntry)
    : sources_(std::move(sources)), damagedEntry_(damagedEntry)
{
    for (const Source& source : sources_) {
        ZipEntry entry;
        entry.comment = source.comment;
        entry.size = source.bytes.size();
        entry.modified = source.modified;
        entry.headerPosition = entries_.size();
        entries_.push_back(entry);
    }
}

void MemoryContainer::Extract(const ZipEntry& entry, const Text&, const ZipReader::Sink& sink)
{
    const Source& source = sources_[entry.headerPosition];
    sink(std::as_bytes(std::span(source.bytes)));
    if (int(entry.headerPosition) == damagedEntry_)
        throw ZipError(ZipError::Kind::Damaged, "CRC");
}

SetupFixture::SetupFixture()
{
    target.copyRights = [this](const Text& from, const Text& to) {
        const MemoryFiles::Node& model = memory.files.At(from);
        MemoryFiles::Node& copy = memory.files.At(to);
        copy.rights = model.rights;
        copy.status.isReadOnly = model.status.isReadOnly;
        copy.status.isHidden = model.status.isHidden;
        copy.status.isSystem = model.status.isSystem;
    };
    project.ProjectName.ProjectName = "Exempel";
    project.ProgramGroup.ProgramGroup = "Exempelgrupp";
    project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\Exempel";
    project.InstallOptions.UninstallSupport = kOn;
    memory.files.PutFolder(kWorkFolder);
    memory.files.PutFolder("L:\\");
    memory.files.PutFolder("C:\\Program");
    memory.files.PutFolder("C:\\WINDOWS\\SYSTEM32");
    memory.files.PutFolder("C:\\Ulla\\Start-meny\\Program");
    memory.files.PutFolder("C:\\Ulla\\Skrivbord");
    memory.files.Put(JoinPath(kPackageFolder, "FILEDATA.DAT"), "the archive");
    memory.files.Put(JoinPath(kPackageFolder, "QNXUNIN.BIN"), "uninstaller");
    memory.files.Put(JoinPath(kPackageFolder, "QNS32X.BIN"), "setup");
    memory.files.Put(JoinPath(kPackageFolder, "QNXREG2.BIN"), "second helper");
    target.keys[{RegistryRoot::LocalMachine, "software"}] = {"SOFTWARE", {}};
    target.keys[{RegistryRoot::LocalMachine, "software\\microsoft"}] = {"SOFTWARE\\Microsoft", {}};
}

InstallRow& SetupFixture::AddFile(const Text& name, const Text& destination,
                                  const std::string& bytes, const Text& options, LocalTime modified)
{
    InstallRow row;
    row.number = int(package.rows.size()) + 1;
    row.name = name;
    row.destination = destination;
    row.size = bytes.size();
    row.sourceFolder = "src";
    row.copyOptions = options;
    sources.push_back({"F" + NumberText(row.number), bytes, modified});
    package.rows.push_back(row);
    return package.rows.back();
}

InstallRow& SetupFixture::AddFolder(const Text& destination)
{
    InstallRow row;
    row.number = int(package.rows.size()) + 1;
    row.name = kEmptyFolderName;
    row.destination = destination;
    package.rows.push_back(row);
    return package.rows.back();
}

ExitCode SetupFixture::Install(const Text& switches)
{
    Switches read = ReadSwitches(switches);
    read.packageFolder = kPackageFolder;
    if (read.logFile.empty())
        read.logFile = kLogFile;
    LoadAnswers(files, read);
    SilentAsk silent;
    const SetupEnd end =
        RunSetup({host, target, ask ? *ask : silent,
                  [this](std::unique_ptr<InputFile> archive) {
                      std::string bytes(archive->Size(), '\0');
                      archive->Read(std::as_writable_bytes(std::span(bytes)));
                      openedContainer = bytes;
                      if (isContainerMissing)
                          throw RunError(ErrorNumber::kFileNotFound, "D:\\Paket\\FILEDATA.DAT");
                      return std::make_unique<MemoryContainer>(sources, damagedEntry);
                  },
                  read, kWorkFolder, pages, sound, otherSetupRuns,
                  [this](const Text& file, const Text& arguments) {
                      if (!files.FileExists(file))
                          throw RunError(ErrorNumber::kFileNotFound, file);
                      started.push_back(file + (arguments.empty() ? "" : " " + arguments));
                  },
                  users,
                  [this](const Text& program, const Text& arguments) {
                      started.push_back(program + " " + arguments);
                      return codeOfStarted;
                  },
                  mayRestart, openHeld},
                 package);
    startsMachineAnew = end.startsMachineAnew;
    logsWritten = end.logs;
    return end.code;
}

ExitCode SetupFixture::UninstallProduct(const Text& path)
{
    const auto product = ReadInstalledProduct(files, path);
    if (!product) {
        ADD_FAILURE() << "no install log";
        return ExitCode::Failed;
    }
    SilentAsk silent;
    ActionLog log(files, memory.machine, kLogFile, product->texts);
    UninstallResult result = Uninstall({host, target, silent, log, path, *product});
    left = std::move(result.left);
    return result.code;
}

MachineState SetupFixture::State() const
{
    MachineState state;
    for (const auto& [key, node] : memory.files.nodes) {
        if (key.substr(0, 2) == "l:" || key.substr(0, 2) == "w:")
            continue;
        const LocalTime& time = node.status.modified;
        state.files[key] =
            node.bytes
                ? *node.bytes + "|" + DateText(time) + " " + TimeTextWithSeconds(time) +
                      (node.status.isReadOnly ? "|r" : "") + (node.status.isHidden ? "|h" : "") +
                      (node.status.isSystem ? "|s" : "") + node.rights
                : "<folder>";
    }
    state.registry = target.keys;
    state.registered = target.registered;
    state.fonts = target.fonts;
    return state;
}

void SetupFixture::ForgetRecordedContents()
{
    const Text log = kMain + "\\QNXUNIN.LOG";
    Text without;
    for (const Text& line : SplitLines(memory.files.Get(log)))
        if (!line.starts_with("CONTENT") && !line.empty())
            without += line + "\r\n";
    memory.files.Put(log, without);
}

Text SetupFixture::Log() const
{
    return *memory.files.nodes.at(LowerCase(kLogFile)).bytes;
}

} // namespace quillon::test
