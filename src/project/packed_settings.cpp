#include "project/packed_settings.h"

#include "project/list_sections.h"
#include "project/section_walk.h"

#include <cstring>

namespace quillon {

namespace {

class Packer {
public:
    void Value(const Text& text)
    {
        Value(static_cast<Long>(text.size()));
        packed.append(text);
    }
    void Value(Integer number) { Value(Long{number}); }
    void Value(Long number)
    {
        char bytes[sizeof number];
        std::memcpy(bytes, &number, sizeof number);
        packed.append(bytes, sizeof bytes);
    }

    Text packed;
};

class Unpacker {
public:
    explicit Unpacker(std::string_view packed) : rest_(packed) {}

    void Value(Text& text)
    {
        Long length = 0;
        Value(length);
        text = rest_.substr(0, static_cast<std::size_t>(length));
        rest_.remove_prefix(text.size());
    }
    void Value(Integer& number)
    {
        Long wide = 0;
        Value(wide);
        number = static_cast<Integer>(wide);
    }
    void Value(Long& number)
    {
        std::memcpy(&number, rest_.data(), sizeof number);
        rest_.remove_prefix(sizeof number);
    }

private:
    std::string_view rest_;
};

/// Every value of the tables, in their order.
template <class Values>
class EachValue {
public:
    explicit EachValue(Values& values) : values_(values) {}

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
            std::visit([&](auto field) { values_.Value(record.*field); }, key.field);
    }

    template <std::size_t count>
    void AllPictures(std::array<Text, count>& pictures)
    {
        for (Text& picture : pictures)
            values_.Value(picture);
    }

    void NumberedText(const char*, int, Text& text, int) { values_.Value(text); }

private:
    Values& values_;
};

template <class Values>
void VisitValues(Values& values, Project& project)
{
    EachValue<Values> each(values);
    VisitSettingsSections(each, project);
    VisitComponents(each, project);
    for (const ListSection& list : kListSections)
        values.Value(project.Lists.*list.text);
}

} // namespace

Text PackSettings(const Project& project)
{
    Packer packer;
    // The walk serves readers too; this one changes nothing.
    VisitValues(packer, const_cast<Project&>(project));
    // The undo history keeps many of these, so spare capacity is given back.
    packer.packed.shrink_to_fit();
    return std::move(packer.packed);
}

void UnpackSettings(std::string_view packed, Project& project)
{
    Unpacker unpacker(packed);
    VisitValues(unpacker, project);
}

} // namespace quillon
