// quillonc remove, refresh, sort, options and compare-lst: the rows that are there.
#include "cli/calls.h"
#include "cli/open_project.h"
#include "cli/project_edit.h"
#include "cli/row_pattern.h"
#include "filelist/list_maintenance.h"
#include "filelist/options/row_options.h"
#include "filelist/row_status.h"
#include "helpers/number_text.h"
#include "importers/lst_file.h"
#include "platform/run_error.h"
#include "project/components.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

namespace {

struct SortWord {
    std::string_view word;
    Column key;
};
constexpr std::array<SortWord, 6> kSortWords{{{"name", Filename},
                                              {"destination", Destination},
                                              {"date", Date},
                                              {"time", Time},
                                              {"component", ComponentNumber},
                                              {"extension", Extension}}};

std::vector<std::size_t> SelectByOperands(const CallContext& context, const FileList& files,
                                          std::size_t first, std::size_t count)
{
    return SelectRows(files, std::span(context.arguments.operands).subspan(first, count));
}

// A row that is marked as vanished keeps the mark when its file comes back.
std::vector<std::size_t> RowsWithoutFile(const FileList& list, const FileSystem& files)
{
    std::vector<std::size_t> rows;
    for (std::size_t i = 0; i < list.rows.size(); ++i)
        if (LacksSource(list.rows[i]) ||
            (list.rows[i].HasSource() && !files.FileExists(list.rows[i][Source])))
            rows.push_back(i);
    return rows;
}

} // namespace

Exit RemoveRows(const CallContext& context)
{
    ProjectEdit edit(context, context.PathOperand(0));
    const auto rows =
        SelectByOperands(context, edit.Files(), 1, context.arguments.operands.size() - 1);
    const Json removed = RowsJson(edit.Files(), rows);
    edit.ask.prepared.confirms = true;
    DeleteRowsCommand(edit.Work(), rows);
    return edit.Save("Borttagna rader: " + CountText(rows.size()) + "\n", {{"removed", removed}});
}

Exit RefreshRows(const CallContext& context)
{
    ProjectEdit edit(context, context.PathOperand(0));
    UpdateFileListCommand(edit.Work(), [](const NewPlaces&) {});
    const auto missing = RowsWithoutFile(edit.Files(), context.host.files);
    return edit.Save("Uppdaterade rader: " + CountText(edit.Files().rows.size()) +
                         ", filer som saknas: " + CountText(missing.size()) + "\n",
                     {{"missing", RowsJson(edit.Files(), missing)}});
}

Exit SortFileList(const CallContext& context)
{
    const std::string word = context.arguments.Value("--by").value_or("name");
    ProjectEdit edit(context, context.PathOperand(0));
    const Column key = std::ranges::find(kSortWords, word, &SortWord::word)->key;
    if (key == ComponentNumber && !IsAnyComponentInUse(edit.session.project))
        throw CallFailure{"Projektet har inga komponenter.", Exit::Stopped};
    SortRowsBy(edit.Files(), key);
    return edit.Save("Sorterade rader: " + CountText(edit.Files().rows.size()) + "\n",
                     {{"by", word}});
}

Exit CompareLstFile(const CallContext& context)
{
    const Text lstFile = context.PathOperand(1);
    ProjectEdit edit(context, context.PathOperand(0));
    RequireReadableFile(context.host.files, lstFile);
    if (const Text fault = TooLargeLstText(context.host.files, lstFile); !fault.empty())
        throw CallFailure{fault, Exit::Unreadable};
    const auto missing = MissingFromFileList(context.host.files, lstFile, edit.Files().rows);
    if (!missing)
        throw CallFailure{"Filen '" + lstFile +
                              "' är ingen LST-fil: den anger inga filer i [Bootstrap Files] eller "
                              "[Setup1 Files].",
                          Exit::Unreadable};
    if (context.WantsJson())
        return context.PrintJson({{"lstFile", lstFile}, {"missing", *missing}}, Exit::Done);
    for (const Text& name : *missing)
        context.out << name << "\n";
    return Exit::Done;
}

} // namespace quillon::cli
