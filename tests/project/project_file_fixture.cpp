#include "project_file_fixture.h"

#include "project/new_project.h"

#include <fstream>
#include <iterator>

namespace quillon::test {

std::string GoldenBytes(const std::string& name)
{
    std::ifstream file(QUILLON_TEST_DATA "/golden/project/" + name, std::ios::binary);
    EXPECT_TRUE(file) << "no golden file " << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

Project NewProject()
{
    Project project;
    OpenProjectState state;
    ResetToNewProject(project, state, kToolFolder);
    return project;
}

std::string With(std::string bytes, const std::string& from, const std::string& to)
{
    const std::size_t place = bytes.find(from);
    if (place == std::string::npos) {
        ADD_FAILURE() << "nowhere in the file: " << from;
        return bytes;
    }
    return bytes.replace(place, from.size(), to);
}

std::string WithoutSection(std::string bytes, const std::string& name)
{
    const std::size_t begin = bytes.find("[" + name + "]\r\n");
    if (begin == std::string::npos) {
        ADD_FAILURE() << "no section " << name;
        return bytes;
    }
    const std::size_t end = bytes.find("\r\n[", begin);
    return bytes.erase(begin, end == std::string::npos ? end : end + 2 - begin);
}

ProjectOnDisk::ProjectOnDisk()
{
    machine.files.PutFolder("C:\\Projekt");
    machine.files.Put(kDefaultBitmap, "BM");
    machine.files.Put("C:\\Data\\Räknaren\\sida.bmp", "BM");
}

ReadEnd ProjectOnDisk::Load(const std::string& bytes, ScriptedAsk& ask)
{
    machine.files.Put(kPath, bytes);
    project.Files.rows.clear();
    const ReadEnd end = ReadProjectFile(project, kPath, machine.host, ask, kToolFolder);
    beeps = ask.beeps;
    return end;
}

ReadEnd ProjectOnDisk::Load(const std::string& bytes)
{
    ScriptedAsk ask;
    return Load(bytes, ask);
}

std::string ProjectOnDisk::Save()
{
    ScriptedAsk ask;
    WriteProjectFile(project, kPath, machine.host, ask);
    return machine.files.Get(kPath);
}

} // namespace quillon::test
