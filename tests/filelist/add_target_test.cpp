#include "filelist/adding/add_target.h"

#include "support/memory_host.h"

#include <gtest/gtest.h>

namespace quillon::test {

using Place = DestinationQuestion::Place;

namespace {

class MachineWith : public FixedMachine {
public:
    explicit MachineWith(Text systemFolder) : systemFolder_(std::move(systemFolder)) {}
    Text GetSystemDir() const override { return systemFolder_; }

private:
    Text systemFolder_;
};

} // namespace

TEST(PresetDestination, OffersTheSystemFolderForFilesFromItAlone)
{
    const MachineWith machine("C:\\WINDOWS\\SYSTEM32");
    const std::pair<std::vector<Text>, Place> cases[] = {
        {{"c:\\windows\\system32\\a.txt"}, Place::System},
        {{"C:\\Windows\\System32\\Sub\\a.txt"}, Place::System},
        {{"C:\\Windows\\System32\\a.txt", "C:\\Windows\\System32\\b.txt"}, Place::System},
        {{"C:\\Windows\\System32X\\a.txt"}, Place::User},
        {{"C:\\Windows\\a.txt"}, Place::User},
    };
    for (const auto& [paths, place] : cases)
        EXPECT_EQ(PresetDestination(paths, "%DESTDIR", machine).place, place) << paths.front();
}

TEST(PresetDestination, OffersTheUsersFolderOnAMachineWithoutASystemFolder)
{
    const MachineWith machine("");
    for (const std::vector<Text>& paths :
         {std::vector<Text>{"Z:\\src\\a.txt"}, {"Z:\\src\\a.txt", "Z:\\src\\b.exe"}}) {
        const DestinationQuestion question = PresetDestination(paths, "%DESTDIR", machine);
        EXPECT_EQ(question.place, Place::User);
        EXPECT_EQ(question.folder, "%DESTDIR");
    }
    EXPECT_EQ(PresetDestination({"Z:\\src\\a.dll"}, "%DESTDIR", machine).place, Place::System);
}

} // namespace quillon::test
