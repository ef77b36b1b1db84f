// Writes the project file: its header, the settings sections by their tables, the lists, the
// components and the rows.
#include "helpers/ansi_text.h"
#include "helpers/flag_text.h"
#include "helpers/line_breaks.h"
#include "helpers/product.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "project/components.h"
#include "project/file_rows.h"
#include "project/list_sections.h"
#include "project/new_project.h"
#include "project/program_group.h"
#include "project/project_file.h"
#include "project/section_walk.h"
#include "project/total_size.h"

namespace quillon {

namespace {

Text Pixels(Integer twips, int twipsPerPixel)
{
    return NumberText(RoundToEven(static_cast<double>(twips) / twipsPerPixel));
}

/// The picture of a tool whose folder can't be written to the file: every tool that reads this
/// takes its own default picture.
Text DlgBitmapOnFile(const Text& path, int limit)
{
    const bool isDefault = EqualIgnoreCase(ExtractFilename(path), kDefaultDlgBitmapName);
    const bool fits =
        AnsiText::Holds(path) && CharacterCount(path) < static_cast<std::size_t>(limit);
    return isDefault && !fits ? kDefaultDlgBitmapName : path;
}

Text TextOnFile(Stored form, const Text& value, int limit)
{
    switch (form) {
    case Stored::AsDlgBitmap:
        return DlgBitmapOnFile(value, limit);
    case Stored::AsLines:
    case Stored::AsLongLines:
        return EncodeLineBreaks(value);
    case Stored::AsFirstLine:
        return FirstLineOnly(value);
    case Stored::AsFlagText:
        return FlagText(IsTrueText(value));
    default:
        return value;
    }
}

Text NumberOnFile(Stored form, Long value, const ScreenMetrics& screen)
{
    switch (form) {
    case Stored::AsFlag:
    case Stored::AsFlagOnIfMissing:
    case Stored::AsFlagWhenOn:
    case Stored::AsFlagReadAsNumber:
        return FlagText(value != 0);
    case Stored::AsPixelsX:
        return Pixels(static_cast<Integer>(value), screen.TPPX);
    case Stored::AsPixelsY:
        return Pixels(static_cast<Integer>(value), screen.TPPY);
    default:
        return NumberText(value);
    }
}

// A section that the file may do without.
template <class Record>
bool IsWritten(const Record&)
{
    return true;
}

bool IsWritten(const section::RunAppSelfX& program)
{
    return !program.ProgramFilename.empty();
}

class SectionWriter {
public:
    SectionWriter(AnsiTextFile& file, const ScreenMetrics& screen) : file_(file), screen_(screen) {}

    void Begin(const Text& name) { file_.Line("[" + name + "]"); }
    void End() { file_.Line(); }

    template <class Record, std::size_t count>
    void Section(const char* name, const ProjectKey<Record> (&keys)[count], Record& record)
    {
        if (!IsWritten(record))
            return;
        Begin(name);
        Keys(keys, record);
        End();
    }

    template <class Record, std::size_t count>
    void Keys(const ProjectKey<Record> (&keys)[count], const Record& record)
    {
        for (const auto& key : keys)
            WriteKey(key, key.name, record);
    }

    template <class Record, std::size_t count>
    void Keys(const ProjectKey<Record> (&keys)[count], const Record& record, int number)
    {
        for (const auto& key : keys)
            WriteKey(key, key.name + NumberText(number), record);
    }

    void NumberedText(const char* key, int number, const Text& text, int)
    {
        Setting(key + NumberText(number), text);
    }

    void Setting(std::string_view key, std::string_view value)
    {
        line_.assign(key).append(" = ").append(value);
        file_.Line(line_);
    }

private:
    template <class Record>
    void WriteKey(const ProjectKey<Record>& key, std::string_view name, const Record& record)
    {
        if (const auto text = std::get_if<Text Record::*>(&key.field)) {
            if (key.form == Stored::AsText)
                Setting(name, record.**text);
            else
                Setting(name, TextOnFile(key.form, record.**text, key.limit));
        } else if (const auto number = std::get_if<Integer Record::*>(&key.field)) {
            if (key.form != Stored::AsFlagWhenOn || record.**number != kOff)
                Setting(name, NumberOnFile(key.form, record.**number, screen_));
        } else {
            Setting(name,
                    NumberOnFile(key.form, record.*std::get<Long Record::*>(key.field), screen_));
        }
    }

    Text line_; // reused, since a project has hundreds of settings
    AnsiTextFile& file_;
    const ScreenMetrics& screen_;
};

void WriteHeader(SectionWriter& writer)
{
    writer.Begin("Origin");
    writer.Setting("Info", kOriginInfo);
    writer.End();
    writer.Begin("ID");
    writer.Setting("App", kTypeMark);
    writer.Setting("Ver", kToolVersion);
    writer.End();
}

void WriteComponents(SectionWriter& writer, Project& project)
{
    const bool used = IsAnyComponentInUse(project);
    writer.Begin("FileComponents");
    writer.Setting("UseComponents", FlagText(used));
    if (used)
        VisitComponents(writer, project);
    writer.End();
}

void WriteFileListInfo(SectionWriter& writer, const FileList& list, Host& host, Ask& ask)
{
    const auto totalSize = SumOfSizes(list.rows, host.machine.DecimalSign());
    if (!totalSize)
        ReportUnreadableSizes(ask);
    writer.Begin("FileListInfo");
    writer.Setting("Files", NumberText(static_cast<std::int64_t>(list.rows.size())));
    writer.Setting("TotalSize", NumberText(totalSize.value_or(0)));
    writer.End();
}

void WriteFileList(AnsiTextFile& file, const FileList& list)
{
    if (list.rows.size() > kMaxRows)
        throw RunError(ErrorNumber::kOverflow);
    file.Line("[FileList]");
    std::size_t number = 0;
    for (const FileListRow& row : list.rows)
        file.Line(FileRowLine(++number, row));
    // Kept: a list without rows has no end either.
    if (list.rows.empty())
        return;
    file.Line(kEndOfList);
    file.Line();
}

} // namespace

void RequireRoomForPictures(const Project& project)
{
    const auto& pictures = project.DesPicturesAnim;
    if (pictures.NrAnimPictures > static_cast<Long>(pictures.P.size()))
        throw RunError(ErrorNumber::kSubscriptOutOfRange);
}

void WriteProject(Project& project, SavedFile& saved, Host& host, Ask& ask,
                  const ScreenMetrics& screen)
{
    AnsiTextFile file(saved);
    SectionWriter writer(file, screen);

    FillEmptyProgramGroup(project);
    WriteHeader(writer);
    VisitSettingsSections(writer, project);
    WriteListSections(file, project.Lists);
    WriteComponents(writer, project);
    WriteFileListInfo(writer, project.Files, host, ask);
    WriteFileList(file, project.Files);
    file.Line(kEndOfFile);
    file.Line();
    file.Close();
}

void WriteProjectFile(Project& project, const Text& path, Host& host, Ask& ask,
                      const ScreenMetrics& screen)
{
    RequireRoomForPictures(project);
    SavedFile file(host.files, path);
    WriteProject(project, file, host, ask, screen);
    file.Commit();
}

} // namespace quillon
