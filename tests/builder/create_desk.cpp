#include "create_desk.h"

#include "support/linked_program.h"
#include "support/plain_icon.h"

namespace quillon::test {

std::optional<Text> FolderDisks::NextDisk(int number)
{
    if (number > lastDisk)
        return std::nullopt;
    const Text folder = "C:\\disk" + NumberText(number);
    files_.PutFolder(folder);
    return folder;
}

std::uint64_t FolderDisks::Capacity(const Text&) const
{
    return capacity;
}

CreateDesk::CreateDesk()
{
    project.ProjectName.ProjectName = "Demo";
    project.InstallDirectories.DestinationDirectory = "%PROGDIR\\Demo";
    AddFile("a.txt");
    for (const char* program :
         {"SETUP32.EXE", "Small32\\QNS32X.EXE", "Full32\\QNS32X.EXE", "DUNZIP32.DLL",
          "Solid\\DUNZIP32.DLL", "QNREG32.EXE", "QNXREG2.EXE", "QNXUNIN.EXE"})
        machine.files.Put(Text("C:\\Quillon\\Release\\") + program, program);
    machine.files.Put("C:\\Quillon\\Release\\QNSELFX.EXE", MakeLinkedProgram({}));
    machine.files.Put("C:\\Quillon\\Res\\SelfExtract.ico", PlainIconFile());
    machine.files.Put("C:\\Quillon\\Language\\SWEDISH.LNG", "[PreLoader]\r\n");
    machine.files.PutFolder("C:\\TEMP");
    machine.files.PutFolder("C:\\WINDOWS\\SYSTEM32");
    machine.files.PutFolder("C:\\Ut");
    Choose(Medium::CompressedCd);
}

CreateResult CreateDesk::Create(std::deque<ExpectedBox> script)
{
    return With([](CreateRun& run) { return RunCreate(run); }, std::move(script));
}

FileListRow& CreateDesk::AddFile(const Text& name, const Text& bytes, const Text& destination)
{
    machine.files.Put("C:\\Data\\" + name, bytes);
    project.Files.rows.push_back(Row(name, destination, LowerCase("C:\\Data\\" + name)));
    return project.Files.rows.back();
}

void CreateDesk::Choose(Medium medium)
{
    form.TargetMedia = medium;
    form.tDestinationDir = "C:\\Ut";
}

std::vector<Text> CreateDesk::Package() const
{
    const Text inside = "c:\\ut\\";
    std::vector<Text> names;
    for (const auto& [key, node] : machine.files.nodes)
        if (node.bytes && key.starts_with(inside))
            names.push_back(node.path.substr(inside.size()));
    return names;
}

} // namespace quillon::test
