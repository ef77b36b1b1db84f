#include "project_file_fixture.h"

#include "project/new_project.h"
#include "support/golden.h"

#include <algorithm>

namespace quillon::test {

std::string GoldenBytes(const std::string& name)
{
    return GoldenFile("project/" + name);
}

std::string Full()
{
    return GoldenBytes("full/full.qnp");
}

std::string Empty()
{
    return GoldenBytes("empty/empty.qnp");
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

namespace {

struct ValuePlace {
    std::size_t lineBegin = 0;
    std::size_t begin = 0;
    std::size_t end = 0;
};

ValuePlace FindValue(const std::string& bytes, const std::string& section, const std::string& key)
{
    const std::size_t header = bytes.find("[" + section + "]\r\n");
    const std::string start = "\r\n" + key + " = ";
    const std::size_t line = bytes.find(start, std::min(header, bytes.size()));
    const std::size_t nextHeader = bytes.find("\r\n[", std::min(header, bytes.size()));
    if (header == std::string::npos || line == std::string::npos || line > nextHeader) {
        ADD_FAILURE() << "no key " << key << " in section " << section;
        return {};
    }
    const std::size_t begin = line + start.size();
    return {line + 2, begin, bytes.find("\r\n", begin)};
}

} // namespace

std::string WithValue(const std::string& bytes, const std::string& section, const std::string& key,
                      const std::string& value)
{
    const ValuePlace place = FindValue(bytes, section, key);
    return bytes.substr(0, place.begin) + value + bytes.substr(place.end);
}

std::string ValueIn(const std::string& bytes, const std::string& section, const std::string& key)
{
    const ValuePlace place = FindValue(bytes, section, key);
    return bytes.substr(place.begin, place.end - place.begin);
}

std::string WithoutKey(const std::string& bytes, const std::string& section, const std::string& key)
{
    const ValuePlace place = FindValue(bytes, section, key);
    return bytes.substr(0, place.lineBegin) + bytes.substr(place.end + 2);
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

std::string ProjectOnDisk::Resave(const std::string& bytes)
{
    EXPECT_EQ(Load(bytes), ReadEnd::Whole);
    return Save();
}

} // namespace quillon::test
