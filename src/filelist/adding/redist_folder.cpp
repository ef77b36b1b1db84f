#include "filelist/adding/redist_folder.h"

namespace quillon {

namespace {

// The program of a registered command line: what is in the leading quotation marks, or else
// everything up to the first switch or argument after the program's extension.
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

std::string_view WithoutFirstCharacter(std::string_view text)
{
    return text.substr(FirstCharacters(text, 1).size());
}

// `programOf` finds the program's path in the command line that opens a project.
template <class ProgramOf>
Text FolderBesideProgram(const Machine& machine, ProgramOf programOf)
{
    const Text command = machine.GetRegKeyStr(RegistryRoot::ClassesRoot,
                                              "VisualBasic.Project\\shell\\open\\command", "");
    if (command.empty())
        return {};
    const std::string_view program = programOf(std::string_view(command));
    return Text(program.substr(0, program.rfind('\\'))) + "\\Wizards\\PDWizard\\Redist";
}

} // namespace

Text RedistFolder(const Machine& machine)
{
    return FolderBesideProgram(machine, ProgramOfCommand);
}

Text GetDirectoryToVB6RedistDir(const Machine& machine)
{
    return FolderBesideProgram(machine, WithoutFirstCharacter);
}

} // namespace quillon
