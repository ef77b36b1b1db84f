#include "cli/open_project.h"

#include "platform/run_error.h"
#include "shell/lifecycle.h"

#include <array>

namespace quillon::cli {

namespace {

// The tool takes a file that it can't read for one without any keys, and refuses it as no project;
// a script gets the real reason.
void RequireReadable(const FileSystem& files, const Text& path)
{
    if (files.DirExists(path))
        throw CallFailure{"'" + path + "' är en katalog och ingen projektfil.", Exit::Unreadable};
    try {
        std::array<std::byte, 1> first{};
        files.OpenInput(path)->Read(first);
    } catch (const RunError& error) {
        throw CallFailure{FailureText(error, path), Exit::Unreadable};
    }
}

} // namespace

Opened OpenProject(Session& session, const Text& path)
{
    RequireReadable(session.host.files, path);
    session.state.ProjectFileName = path;
    const std::optional<ReadEnd> end = LoadProject(session);
    if (end == ReadEnd::Refused)
        throw CallFailure{"'" + path + "' är inget projekt.", Exit::Unreadable};
    return end == ReadEnd::Whole ? Opened::Whole : Opened::InPart;
}

Text PartlyReadText(const Text& path)
{
    return "Projektet '" + path +
           "' är skadat eller avkortat: det som står efter felet är inte läst.";
}

} // namespace quillon::cli
