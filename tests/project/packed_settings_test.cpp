#include "project/packed_settings.h"

#include "project/list_sections.h"
#include "project/section_walk.h"

#include <gtest/gtest.h>

namespace quillon {
namespace {

// Changes the values of a project one by one; `look` is called after each change.
class OneByOne {
public:
    explicit OneByOne(std::function<void(const Text& key)> look) : look_(std::move(look)) {}

    void Begin(const char*) {}
    void End() {}

    template <class Record, std::size_t count>
    void Section(const char*, const ProjectKey<Record> (&keys)[count], Record& record)
    {
        Keys(keys, record);
    }

    template <class Record, std::size_t count>
    void Keys(const ProjectKey<Record> (&keys)[count], Record& record, int = 0)
    {
        for (const auto& key : keys)
            std::visit([&](auto field) { Change(record.*field, key.name); }, key.field);
    }

    void AllPictures(std::array<Text, section::kMaxAnimPictures>& pictures)
    {
        for (Text& picture : pictures)
            Change(picture, "P");
    }

    void NumberedText(const char* key, int, Text& text, int) { Change(text, key); }

    void Change(Text& text, const Text& key) { ChangeTo(text, text + "x", key); }
    void Change(Integer& number, const Text& key)
    {
        ChangeTo(number, static_cast<Integer>(number - 2), key);
    }
    void Change(Long& number, const Text& key) { ChangeTo(number, number - 70000, key); }

private:
    template <class Value>
    void ChangeTo(Value& value, Value other, const Text& key)
    {
        const Value before = std::exchange(value, std::move(other));
        look_(key);
        value = before;
    }

    std::function<void(const Text& key)> look_;
};

TEST(PackedSettings, TellAProjectFromOneWithAnyOtherValue)
{
    Project project;
    const Text packed = PackSettings(project);
    int changes = 0;
    OneByOne walk([&](const Text& key) {
        const Text changed = PackSettings(project);
        EXPECT_NE(changed, packed) << key;
        Project other;
        UnpackSettings(changed, other);
        EXPECT_EQ(PackSettings(other), changed) << key;
        UnpackSettings(packed, other);
        EXPECT_EQ(PackSettings(other), packed) << key;
        ++changes;
    });
    VisitSettingsSections(walk, project);
    VisitComponents(walk, project);
    for (const ListSection& list : kListSections)
        walk.Change(project.Lists.*list.text, list.name);
    EXPECT_GT(changes, 300);
    EXPECT_EQ(PackSettings(project), packed);
}

TEST(PackedSettings, KeepTextsThatTheProjectFileCouldNotHold)
{
    Project project;
    project.Lists.Registry.assign(70000, 'r');
    project.ProjectName.ProjectName = Text("a\0b", 3) + "\r\n....\r\n";
    project.DesPicturesAnim.NrAnimPictures = 30;
    project.DesPicturesAnim.P[20] = "hidden.bmp";
    Project other;
    other.Files.rows.resize(2);
    UnpackSettings(PackSettings(project), other);
    EXPECT_EQ(other.Lists.Registry, project.Lists.Registry);
    EXPECT_EQ(other.ProjectName.ProjectName, project.ProjectName.ProjectName);
    EXPECT_EQ(other.DesPicturesAnim.NrAnimPictures, 30);
    EXPECT_EQ(other.DesPicturesAnim.P[20], "hidden.bmp");
    EXPECT_EQ(other.Files.rows.size(), 2U) << "rows are no settings";
}

} // namespace
} // namespace quillon
