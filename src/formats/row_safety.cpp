#include "formats/row_safety.h"

#include "formats/variable_names.h"
#include "project/file_list.h"

namespace quillon {

namespace {

using Meaning = VariableMeaning;

// What a value may look like, as far as it decides whether the text around it makes a folder.
constexpr std::string_view kSomeFolder = "C:\\x";
constexpr std::string_view kSomeDrive = "C:";
constexpr std::string_view kSomeText = "x";

std::string_view SampleValue(Meaning meaning)
{
    switch (meaning) {
    case Meaning::MainFolder:
    case Meaning::ComponentFolder:
    case Meaning::SystemFolder:
    case Meaning::WindowsFolder:
    case Meaning::SetupFolder:
    case Meaning::ProgramFilesFolder:
    case Meaning::CommonFilesFolder:
    case Meaning::FontFolder:
    case Meaning::DataAccessFolder:
    case Meaning::DocumentsFolder:
    case Meaning::ApplicationDataFolder:
    case Meaning::LocalApplicationDataFolder:
    case Meaning::TemplatesFolder:
    case Meaning::WordStartupFolder:
        return kSomeFolder;
    case Meaning::MainFolderDrive:
    case Meaning::SetupDrive:
        return kSomeDrive;
    default:
        return kSomeText;
    }
}

/// The variable that the text begins with; of two, the longer one is meant. Null where there is
/// none.
const VariableName* VariableAtStart(std::string_view text)
{
    const VariableName* best = nullptr;
    if (!text.starts_with('%'))
        return best;
    for (const VariableName& variable : kVariableNames)
        if (text.starts_with(variable.name) &&
            (best == nullptr || variable.name.size() > best->name.size()))
            best = &variable;
    return best;
}

Text WithSampleValues(std::string_view text)
{
    Text replaced;
    while (!text.empty()) {
        const VariableName* const variable = VariableAtStart(text);
        replaced += variable != nullptr ? SampleValue(variable->meaning) : text.substr(0, 1);
        text.remove_prefix(variable != nullptr ? variable->name.size() : 1);
    }
    return replaced;
}

Text FaultLine(const char* what, std::string_view text, PathFault fault)
{
    if (fault == PathFault::None)
        return {};
    return Text(what).append(" '").append(text) +
           "' fungerar inte i Windows: " + PathFaultText(fault) + ".";
}

} // namespace

PathFault FaultOfRowName(std::string_view name)
{
    return name == kEmptyFolderName ? PathFault::None : FaultOfName(name);
}

PathFault FaultOfDestination(std::string_view destination)
{
    // Blanks around it count for nothing when the setup expands it.
    const Text text = TrimBlanks(destination);
    if (text.starts_with('%') && VariableAtStart(text) == nullptr)
        return PathFault::UnknownVariable;
    return FaultOfFolder(WithSampleValues(text));
}

PathFault FaultOfSourceFolder(std::string_view folder)
{
    const std::size_t start = folder.find_first_not_of("\\/");
    if (start == std::string_view::npos)
        return PathFault::None;
    folder.remove_prefix(start);
    const bool hasColon = folder.find(':') != std::string_view::npos;
    return hasColon ? PathFault::Colon : FaultOfFolder(folder);
}

PathFault FaultOfRow(const InstallRow& row, bool isTree)
{
    if (const PathFault fault = FaultOfRowName(row.name); fault != PathFault::None)
        return fault;
    if (const PathFault fault = FaultOfDestination(row.destination); fault != PathFault::None)
        return fault;
    return isTree ? FaultOfSourceFolder(row.sourceFolder) : PathFault::None;
}

Text UnknownVariableIn(std::string_view destination)
{
    constexpr std::string_view kCapitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    constexpr std::size_t kMinWordLength = 2; // "100%A" is no attempt at a variable
    for (std::size_t at = destination.find('%'); at != std::string_view::npos;
         at = destination.find('%', at + 1)) {
        const std::string_view rest = destination.substr(at);
        const std::size_t end = std::min(rest.find_first_not_of(kCapitals, 1), rest.size());
        if (end > kMinWordLength && VariableAtStart(rest) == nullptr)
            return Text(rest.substr(0, end));
    }
    return {};
}

Text PathFaultText(PathFault fault)
{
    switch (fault) {
    case PathFault::None:
        return {};
    case PathFault::Empty:
        return "namnet saknas";
    case PathFault::Character:
        return "tecknen \\ / : * ? \" < > | får inte ingå i ett namn";
    case PathFault::Control:
        return "styrtecken, till exempel radbrytningar, får inte ingå i ett namn";
    case PathFault::End:
        return "ett namn får inte sluta med punkt eller blanksteg";
    case PathFault::Device:
        return "CON, PRN, AUX, NUL, COM1 till COM9 och LPT1 till LPT9 är reserverade namn";
    case PathFault::TooLong:
        return "ett namn får ha högst 255 tecken";
    case PathFault::Climbs:
        return "'..' får inte ingå";
    case PathFault::Colon:
        return "ett kolon får bara stå efter enhetens bokstav";
    case PathFault::NotAbsolute:
        return "det är ingen fullständig katalog";
    case PathFault::UnknownVariable:
        return "variabeln är okänd";
    }
    return {};
}

Text NameFaultText(std::string_view name)
{
    return FaultLine("Namnet", name, FaultOfName(name));
}

Text RowNameFaultText(std::string_view name)
{
    return FaultLine("Namnet", name, FaultOfRowName(name));
}

Text DestinationFaultText(std::string_view destination)
{
    return FaultLine("Destinationen", destination, FaultOfDestination(destination));
}

Text SourceFolderFaultText(std::string_view folder)
{
    return FaultLine("Källkatalogen", folder, FaultOfSourceFolder(folder));
}

} // namespace quillon
