#include "workshop.h"

#include "support/linked_program.h"
#include "support/plain_icon.h"

#include "helpers/windows_path.h"
#include "platform/posix/posix_host.h"
#include "project/new_project.h"
#include "project/project_file.h"
#include "support/scripted_ask.h"

#include <algorithm>

namespace quillon::test {

namespace fs = std::filesystem;

namespace {

FileListRow FileRow(const Text& source)
{
    FileListRow row;
    row[Filename] = ExtractFilename(source);
    row[Destination] = "%DESTDIR";
    row[Size] = "0.0";
    row[CopyOptions] = "D";
    row[Source] = LowerCase(JoinPath("S:", source));
    return row;
}

FileListRow FolderRow(const Text& folder)
{
    FileListRow row;
    row[Filename] = kEmptyFolderName;
    row[Destination] = JoinPath("%DESTDIR", RemoveLastBackslash(folder));
    return row;
}

} // namespace

Workshop::Workshop()
{
    fs::permissions(disk.Path(), fs::perms(0755));
    disk.PutFolder("out");
    disk.PutFolder("src");
    for (const char* program :
         {"SETUP32.EXE", "Small32/QNS32X.EXE", "Full32/QNS32X.EXE", "DUNZIP32.DLL",
          "Solid/DUNZIP32.DLL", "QNREG32.EXE", "QNXREG2.EXE", "QNXUNIN.EXE"})
        disk.Put(std::string("tool/Release/") + program, std::string("runtime: ") + program);
    disk.Put("tool/Release/QNSELFX.EXE", MakeLinkedProgram({}));
    disk.Put("tool/Language/SWEDISH.LNG", "[PreLoader]\r\n");
    disk.Put("tool/Res/SetupDef.bmp", "BM");
    disk.Put("tool/Res/SelfExtract.ico", PlainIconFile());
    fs::copy_file(QUILLONC, disk.Path("tool/quillonc"));
    environment = {{"QUILLON_DRIVES", "S=" + disk.Path("src")},
                   {"QUILLON_DRIVE_C", disk.Path("c")},
                   {"QUILLON_REGISTRY", ""},
                   {"LC_ALL", "C"}};
}

Project Workshop::MakeProject(std::initializer_list<Text> sources) const
{
    Project project;
    OpenProjectState state;
    ResetToNewProject(project, state, "Z:\\nowhere");
    project.DialogBoxes.DlgBitmap = "";
    project.ProjectName.ProjectName = "Prov";
    project.InstallDirectories.DestinationDirectory = "%PROGDIR\\Prov";
    for (const Text& source : sources) {
        const bool isFolder = source.ends_with("\\");
        project.Files.rows.push_back(isFolder ? FolderRow(source) : FileRow(source));
    }
    return project;
}

std::string Workshop::Save(Project project, const std::string& name) const
{
    MachineSettings settings;
    settings.drives = {{'Z', "/"}, {'C', disk.Path("c")}};
    PosixHost host(settings);
    ScriptedAsk ask;
    WriteProjectFile(project, *host.drives.ToWindows(disk.Path(name)), host.host, ask);
    return disk.Path(name);
}

ProgramRun Workshop::Quillonc(std::vector<std::string> words, RunAs user) const
{
    words.emplace(words.begin(), disk.Path("tool/quillonc"));
    return RunProgram(words, environment, user);
}

ProgramRun Workshop::Create(const std::string& project, std::vector<std::string> more) const
{
    more.insert(more.begin(), {"create", project, "--to", out});
    return Quillonc(more);
}

Json Workshop::ObjectOf(const ProgramRun& run)
{
    const Json object = Json::parse(run.out, nullptr, false);
    EXPECT_TRUE(object.is_object()) << run.out;
    if (object.is_object()) {
        EXPECT_EQ(object.value("exitCode", -1), run.exitCode);
    }
    return object.is_object() ? object : Json::object();
}

std::vector<std::string> Workshop::Names(const std::string& folder) const
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(disk.Path(folder)))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace quillon::test
