#include "packages/packaged_product.h"

#include "formats/package.h"
#include "helpers/windows_path.h"
#include "packages/direct_container.h"
#include "runtime/setup_program.h"
#include "runtime/silent_ask.h"

namespace quillon::test {

namespace {

const Text kPackage = "D:\\Paket";
const Text kWork = "W:\\Arbete";
const Text kLog = "L:\\logg.txt";

/// Disks that hold little, as folders of the package.
class SmallDisks : public DiskSource {
public:
    explicit SmallDisks(MemoryFiles& files) : files_(files) {}

    std::optional<Text> NextDisk(int number) override
    {
        files_.PutFolder(DiskFolder("C:\\Ut", number));
        return DiskFolder("C:\\Ut", number);
    }
    std::uint64_t Capacity(const Text&) const override { return 3000; }

private:
    MemoryFiles& files_;
};

std::string Noise(std::size_t size, std::uint32_t state)
{
    std::string bytes(size, '\0');
    for (char& byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24U);
    }
    return bytes;
}

void FillProject(CreateDesk& desk, const Text& password)
{
    desk.project.Files.rows.clear();
    desk.AddFile("prog.exe", Noise(4000, 1))[CopyOptions] = "VRA";
    desk.AddFile("läs mig.txt", "text", "%DESTDIR\\Doc");
    desk.AddFile("tom.dat", "");
    desk.project.InstallOptions.UninstallSupport = kOn;
    desk.project.InstallOptions.CreateAutorunFile = kOn;
    desk.project.Lists.Registry = "ADD=HKEY_CURRENT_USER\\SOFTWARE\\Prov;Antal=dword:7";
    desk.project.Lists.INIFiles = "%WINDIR\\prov.ini\r\n[Mapp]\r\nNamn=Värde";
    desk.project.DesBackground.PictureFilename = "C:\\Bilder\\bild.bmp";
    desk.machine.files.Put("C:\\Bilder\\bild.bmp", Noise(500, 2));
    desk.project.DialogBoxes.LicenseInfoRtfDlg = 1;
    desk.project.DialogBoxData.LicenseFilenameRtf = "C:\\Data\\licens.rtf";
    desk.machine.files.Put("C:\\Data\\licens.rtf", "{\\rtf1 text}");
    if (password.empty())
        return;
    desk.project.DialogBoxes.PasswordDlg = 1;
    desk.project.DialogBoxData.CorrectPassword = password;
}

void PutFiles(MemoryFiles& machine, const PackageFiles& files)
{
    for (const auto& [name, bytes] : files)
        machine.Put(JoinPath(kPackage, name), bytes);
}

std::map<Text, std::string> StateOf(const MemoryHost& memory, const MemoryTarget& target)
{
    std::map<Text, std::string> state;
    for (const auto& [path, node] : memory.files.nodes)
        if (path.starts_with("c:"))
            state[path] = node.bytes ? *node.bytes : "<folder>";
    for (const auto& [key, node] : target.keys)
        for (const auto& [name, value] : node.values)
            state[key.second + "=" + name] = value.second.bytes;
    for (const Text& path : target.registered)
        state["registered " + path] = "";
    return state;
}

struct Machine {
    Machine()
    {
        for (const char* folder :
             {"C:\\Program", "C:\\WINDOWS\\SYSTEM32", "C:\\Ulla\\Start-meny\\Program",
              "C:\\Ulla\\Skrivbord", "L:\\", "W:\\Arbete"})
            memory.files.PutFolder(folder);
    }

    MemoryHost memory;
    MemoryTarget target{&memory.files};
};

} // namespace

PackageFiles MakeProductPackage(const ProductMedium& medium, const Text& password)
{
    CreateDesk desk;
    FillProject(desk, password);
    desk.Choose(medium.medium);
    desk.form.KeepCompressedFilesOneAndOne = medium.isOneByOne ? 1 : 0;
    desk.form.SmallContainer = medium.isSmall ? 1 : 0;
    ScriptedAsk ask;
    if (medium.medium == Medium::Floppy)
        ask.Expect({BoxKind::OkCancel, "Diskett", "Stoppa in diskett nr 1!"});
    SmallDisks disks(desk.machine.files);
    CompressionInterface compression(desk.machine.host, ask, disks);
    CreateRun run{.project = desk.project,
                  .state = desk.state,
                  .form = desk.form,
                  .options = desk.options,
                  .host = desk.machine.host,
                  .ask = ask,
                  .compression = compression};
    EXPECT_EQ(RunCreate(run), CreateResult::Done) << medium.name;
    PackageFiles files;
    for (const Text& name : desk.Package())
        files[name] = desk.Get(name);
    if (medium.medium == Medium::CdTree)
        for (const FileListRow& row : desk.project.Files.rows)
            files["data\\" + row[Filename]] = desk.machine.files.Get(row[Source]);
    return files;
}

void ListAgain(PackageFiles& files)
{
    MemoryFiles memory;
    PutFiles(memory, files);
    std::vector<ManifestLine> lines;
    for (const auto& [name, bytes] : files)
        if (name != kManifestName && !name.starts_with(".."))
            lines.push_back({name, DigestOfFile(memory, JoinPath(kPackage, name))});
    WritePackageManifest(memory, kPackage, lines);
    files[kManifestName] = memory.Get(JoinPath(kPackage, kManifestName));
}

InstalledProduct InstallProduct(const PackageFiles& files, const Text& password)
{
    return RunProduct(files, password.empty() ? "/S" : "/S /PASSWORD=" + password);
}

InstalledProduct RunProduct(const PackageFiles& files, const Text& given)
{
    Machine machine;
    PutFiles(machine.memory.files, files);
    const LoadedPackage package = LoadPackage(machine.memory.files, kPackage);
    Switches switches = ReadSwitches(given);
    switches.packageFolder = kPackage;
    switches.logFile = kLog;
    SilentAsk ask;
    const SetupEnd end = RunSetup(
        {machine.memory.host, machine.target, ask, DirectContainers(), switches, kWork}, package);
    InstalledProduct installed{
        end.code, machine.memory.files.Get(kLog), StateOf(machine.memory, machine.target), {}};
    for (const auto& [path, node] : machine.memory.files.nodes)
        if (node.bytes)
            installed.modified[path] = node.status.modified;
    return installed;
}

std::map<Text, std::string> EmptyMachine()
{
    const Machine machine;
    return StateOf(machine.memory, machine.target);
}

std::vector<Text> VerifyProduct(const PackageFiles& files)
{
    MemoryFiles memory;
    PutFiles(memory, files);
    Package package = OpenPackage(memory, kPackage);
    return VerifyPackage(memory, package);
}

} // namespace quillon::test
