#include "cli/project_json.h"

#include "project/list_sections.h"
#include "project/section_walk.h"

#include <nlohmann/json.hpp>

namespace quillon::cli {

namespace {

/// Walks the same tables as the project file's writer.
class JsonWriter {
public:
    Json Take() { return std::move(whole_); }

    void Begin(const char* name)
    {
        name_ = name;
        section_ = Json::object();
    }
    void End() { whole_[name_] = std::move(section_); }

    template <class Record, std::size_t count>
    void Section(const char* name, const ProjectKey<Record> (&keys)[count], Record& record)
    {
        Begin(name);
        Keys(keys, record);
        End();
    }

    template <class Record, std::size_t count>
    void Keys(const ProjectKey<Record> (&keys)[count], const Record& record)
    {
        for (const auto& key : keys)
            Put(key, key.name, record);
    }

    template <class Record, std::size_t count>
    void Keys(const ProjectKey<Record> (&keys)[count], const Record& record, int number)
    {
        for (const auto& key : keys)
            Put(key, key.name + NumberText(number), record);
    }

    void NumberedText(const char* key, int number, const Text& text, int)
    {
        section_[key + NumberText(number)] = text;
    }

private:
    // The pixels of a place are made for the file alone; the model knows its twips.
    template <class Record>
    void Put(const ProjectKey<Record>& key, const Text& name, const Record& record)
    {
        if (IsPixels(key.form))
            return;
        std::visit([&](auto field) { section_[name] = record.*field; }, key.field);
    }

    Text name_;
    Json section_;
    Json whole_ = Json::object();
};

} // namespace

Json ProjectJson(const Project& project)
{
    // The walk is made for readers too and wants a project that may change.
    Project copy = project;
    Json whole = SettingsJson(copy);
    Json rows = Json::array();
    for (const FileListRow& row : project.Files.rows)
        rows.push_back(row.columns);
    whole["FileList"] = std::move(rows);
    return whole;
}

Json SettingsJson(Project& project)
{
    JsonWriter writer;
    VisitSettingsSections(writer, project);
    writer.Begin("FileComponents");
    VisitComponents(writer, project);
    writer.End();

    Json settings = writer.Take();
    for (const ListSection& list : kListSections)
        settings[list.name] = project.Lists.*list.text;
    return settings;
}

Text ValueText(const Json& value)
{
    return value.is_string() ? value.get<Text>() : value.dump();
}

} // namespace quillon::cli
