// A call that changes a project: opens it, lets the call work on it, and saves it whole or not at
// all. A call that changes nothing leaves the file as it is, its date included.
#pragma once

#include "cli/call_context.h"
#include "cli/edit_ask.h"
#include "filelist/list_work.h"
#include "shell/session.h"

#include <nlohmann/json.hpp>

namespace quillon::cli {

class ProjectEdit {
public:
    enum class Begin { WithTheFile, WithANewProject };

    /// The project is the call's first path. Throws `CallFailure` where it can't be opened whole,
    /// or where one is to be made and the file is there.
    ProjectEdit(const CallContext& context, const Text& path, Begin begin = Begin::WithTheFile);
    ProjectEdit(const ProjectEdit&) = delete;
    ProjectEdit& operator=(const ProjectEdit&) = delete;

    ListWork Work() { return {session.project, session.state, session.host, ask}; }
    FileList& Files() { return session.project.Files; }

    /// Ends the call where something could not be done, unless the user wants the rest.
    void RequireNothingRefused() const;

    /// Saves what has changed and reports it: the lines to people, the members to scripts.
    Exit Save(const Text& lines, Json members);

    EditAsk ask;
    Session session;

private:
    bool HasChanged();
    void Write();
    void WriteAndLookAt();
    void Lock();
    void RequireSameAgain(const Text& file);
    Project ReadAgain(const Text& file) const;
    Json SettingsOfUnchangedProject(const Text& file) const;
    void RequireNobodyElseSaved() const;

    const CallContext& context_;
    Text path_;
    // Held from before the reading to after the saving, so that no change of another call is lost.
    std::unique_ptr<FileLock> lock_;
    bool isNew_;
    std::string bytesBefore_;
    Json settingsBefore_;
    std::vector<FileListRow> rowsBefore_;
};

/// Ends the call where the file can't be read.
void RequireReadableFile(const FileSystem& files, const Text& path);

/// One object for each of these rows, with their numbers counted from 1.
Json RowsJson(const FileList& files, const std::vector<std::size_t>& rows);

} // namespace quillon::cli
