// What the import calls share: the user whose answers are the switches, and how a call ends.
#pragma once

#include "cli/project_edit.h"
#include "importers/import_data.h"
#include "importers/import_work.h"

namespace quillon::cli {

class ImportRun : private ImportUser {
public:
    /// Opens the project of the call's first operand.
    explicit ImportRun(const CallContext& context);
    ImportRun(const ImportRun&) = delete;
    ImportRun& operator=(const ImportRun&) = delete;

    ImportWork Work();
    ImportData Data();

    /// Saves the project, or says what a dry run would have added. `members` go into the object.
    Exit Finish(const ImportResult& result, const Text& lines = {}, Json members = Json::object());

    ProjectEdit edit;

private:
    std::optional<Text> ChooseProgramDestination(const ProgramQuestion& question) override;
    bool EditIcon(FileListRow& row, const Text& title) override;

    void RequireFinished(ImportEnd end);
    Json MissedJson(const ImportResult& result) const;

    const CallContext& context_;
};

} // namespace quillon::cli
