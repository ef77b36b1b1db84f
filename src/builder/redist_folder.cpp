#include "builder/redist_folder.h"

#include "helpers/windows_path.h"

namespace quillon {

namespace {

// The program of a registered command line: what stands in the leading quotation marks, or else
// everything up to the first switch or argument behind the program's extension.
std::string_view ProgramOfCommand(std::string_view command)
{
    if (command.starts_with('"')) {
        command.remove_prefix(1);
        return command.substr(0, command.find('"'));
    }
    constexpr std::string_view kExtension = ".exe";
    const std::size_t extension = LowerCase(command).find(kExtension);
    return command.substr(0, extension == Text::npos ? extension : extension + kExtension.size());
}

} // namespace

Text RedistFolder(const Machine& machine)
{
    const Text command = machine.GetRegKeyStr(RegistryRoot::ClassesRoot,
                                              "VisualBasic.Project\\shell\\open\\command", "");
    if (command.empty())
        return {};
    return JoinPath(ExtractDirectory(ProgramOfCommand(command)), "Wizards\\PDWizard\\Redist");
}

} // namespace quillon
