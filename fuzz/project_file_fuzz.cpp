// Project files of any content: reading comes to an end, and whatever came in can be saved, unless
// it is more than a project file holds, and comes back as it was: each row, each value. A file that
// was read whole has no row that was not read, and a save that fails leaves the file.
#include "helpers/text.h"
#include "project/file_rows.h"
#include "project/new_project.h"
#include "project/project_file.h"
#include "require.h"
#include "support/one_file_host.h"

using namespace quillon;

namespace {

constexpr const char* kPath = "C:\\a.qnp";
constexpr const char* kToolFolder = "C:\\Quillon";

struct Desk {
    explicit Desk(std::string bytes) : files(std::move(bytes)) {}

    ReadEnd Load(Project& project)
    {
        return ReadProjectFile(project, kPath, host, user, kToolFolder);
    }
    int Save(Project& project)
    {
        return RunErrorNumber([&] { WriteProjectFile(project, kPath, host, user); });
    }

    test::OneFile files;
    test::PlainMachine machine;
    test::SilentUser user;
    Host host{files, machine};
};

std::string_view TakeLine(std::string_view& bytes)
{
    const std::size_t end = std::min(bytes.find(kLineBreak), bytes.size());
    const std::string_view line = bytes.substr(0, end);
    bytes.remove_prefix(std::min(end + kLineBreak.size(), bytes.size()));
    return line;
}

// Lines of the file list, looked for without the reader's help.
std::size_t RowsOnFile(std::string_view bytes)
{
    while (!bytes.empty() && TakeLine(bytes) != "[FileList]") {
    }
    std::size_t rows = 0;
    while (!bytes.empty()) {
        const std::string_view line = TakeLine(bytes);
        if (line == "....")
            break;
        rows += line.find('=') != std::string_view::npos ? 1 : 0;
    }
    return rows;
}

// Kept: a line of a list that is the header of another section is taken for that.
bool HasHeaderInAList(const section::Lists& lists)
{
    for (const Text* list : {&lists.RunScriptBefore, &lists.RunScriptAfter, &lists.Registry,
                             &lists.AutoexecBat, &lists.ConfigSys, &lists.RegisterFileList})
        if (list->find('[') != Text::npos)
            return true;
    return false;
}

// Kept: a value loses blanks round it, then one pair of quotation marks, whenever it is read.
bool LosesSomethingWhenRead(std::string_view line)
{
    const std::size_t sign = line.find(" = ");
    if (sign == std::string_view::npos)
        return false;
    const std::string_view value = line.substr(sign + 3);
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    return !value.empty() && (isBlank(value.front()) || isBlank(value.back()) ||
                              (value.size() > 1 && value.front() == value.back() &&
                               (value.front() == '"' || value.front() == '\'')));
}

// Kept: a project without a program group gets its own name as the group when it is saved, and that
// name may be longer than what is read of a group.
bool IsLongGroup(std::string_view line)
{
    constexpr std::string_view kKey = "ProgramGroup = ";
    constexpr std::size_t kMaxRead = 99;
    return line.starts_with(kKey) && line.size() > kKey.size() + kMaxRead;
}

void RequireSameValues(std::string_view first, std::string_view second)
{
    while (!first.empty() || !second.empty()) {
        const std::string_view line = TakeLine(first);
        const std::string_view again = TakeLine(second);
        Require(line == again || LosesSomethingWhenRead(line) || IsLongGroup(line));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string original(reinterpret_cast<const char*>(bytes), size);
    Desk desk(original);
    Project project;
    OpenProjectState state;
    ResetToNewProject(project, state, kToolFolder);

    const ReadEnd end = desk.Load(project);
    // Nothing was read, so the project is a new one.
    if (end == ReadEnd::Refused)
        return 0;
    Require(project.Files.rows.size() <= kMaxRows);
    Require(end != ReadEnd::Whole || project.Files.rows.size() == RowsOnFile(original));

    // Of a row that the file cuts, the size's decimal sign is not looked at before it is whole.
    if (end == ReadEnd::RowsCut && !project.Files.rows.empty())
        project.Files.rows.back()[Size] =
            NormalizeDecimalSeparator(project.Files.rows.back()[Size], ',');

    // Kept: the end of the last line of the INI list is not written, so of empty lines at its end
    // one goes with every save.
    Text& iniFiles = project.Lists.INIFiles;
    while (iniFiles.ends_with(kLineBreak))
        iniFiles.resize(iniFiles.size() - kLineBreak.size());

    const int error = desk.Save(project);
    if (error != ErrorNumber::kNone) {
        Require(error == ErrorNumber::kOverflow || error == ErrorNumber::kSubscriptOutOfRange);
        Require(desk.files.bytes == original);
        return 0;
    }
    const std::string saved = desk.files.bytes;
    Require(saved.ends_with("-(EOF)-\r\n\r\n"));
    if (HasHeaderInAList(project.Lists))
        return 0;

    Project again;
    Require(desk.Load(again) == ReadEnd::Whole);
    Require(again.Files.rows == project.Files.rows);
    Require(desk.Save(again) == ErrorNumber::kNone);
    RequireSameValues(saved, desk.files.bytes);
    return 0;
}
