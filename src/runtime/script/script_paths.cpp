#include "runtime/script/script_paths.h"

#include "helpers/drive_path.h"
#include "helpers/windows_name.h"
#include "helpers/windows_path.h"
#include "runtime/command_line/switches.h"

namespace quillon {

namespace {

// The folders that the setup uses in any case. Links above them are set up by the machine's owner.
constexpr VariableMeaning kKnownFolders[] = {
    VariableMeaning::MainFolder,
    VariableMeaning::SystemFolder,
    VariableMeaning::WindowsFolder,
    VariableMeaning::SetupFolder,
    VariableMeaning::ProgramFilesFolder,
    VariableMeaning::CommonFilesFolder,
    VariableMeaning::FontFolder,
    VariableMeaning::DocumentsFolder,
    VariableMeaning::ApplicationDataFolder,
    VariableMeaning::LocalApplicationDataFolder,
    VariableMeaning::TemplatesFolder,
};

bool IsAtOrAboveKnownFolder(const Text& folder, const SetupVariables& variables)
{
    const Text inside = LowerCase(folder) + "\\";
    for (const VariableMeaning meaning : kKnownFolders)
        if ((LowerCase(variables.Value(NameOf(meaning))) + "\\").starts_with(inside))
            return true;
    return false;
}

bool LeadsThroughLink(const Text& path, const SetupVariables& variables, const Target& target)
{
    for (Text at = path; !IsDriveRoot(at);) {
        if (target.IsLink(at) && !IsAtOrAboveKnownFolder(at, variables))
            return true;
        const Text above = ExtractDirectory(at);
        if (above.empty() || above == at)
            break;
        at = above;
    }
    return false;
}

} // namespace

std::optional<Reason> FaultOfScriptPath(const Text& path, const SetupVariables& variables,
                                        const Target& target)
{
    if (!IsAbsolutePath(path) || FaultOfFolder(path) != PathFault::None ||
        ResolvePath(path) != path)
        return Reason{Message::PackageBadPath, path};
    if (LeadsThroughLink(path, variables, target))
        return Reason{Message::ReasonLinkInPath};
    return std::nullopt;
}

} // namespace quillon
