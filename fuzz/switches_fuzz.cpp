// Command lines of any content, for the setup, its starter and the uninstaller: the starter is
// silent exactly when the setup is, and a switch that is quoted as a whole means what it says.
#include "helpers/drive_path.h"
#include "require.h"
#include "runtime/command_line/switch_words.h"
#include "runtime/command_line/switches.h"

#include <algorithm>
#include <cstdint>

using namespace quillon;

namespace {

// The name of a misspelt password is reported without them.
Text WithoutQuotes(Text text)
{
    std::erase(text, '"');
    return text;
}

void ReadQuotedAsAWhole(const Text& value)
{
    const Switches switches =
        ReadSwitches("\"/S\"\t\"/LOG=" + value + "\" \"/PASSWORD=" + value + '"');
    Require(switches.silent && switches.logFile == value && switches.password == value);
    Require(switches.badSwitch.has_value() == value.empty());
}

// What follows a misspelt switch may be a password.
void ShowNoValue(const Text& value)
{
    Require(ReadSwitches("\"/PASWORD=" + value + '"').badSwitch == "/PASWORD");
}

// The switch that is reported, up to the ellipsis for a word that is not shown.
Text ShownPart(Text badSwitch)
{
    constexpr std::string_view kEllipsis = "\u2026";
    if (badSwitch.ends_with(kEllipsis))
        badSwitch.resize(badSwitch.size() - kEllipsis.size());
    if (badSwitch.ends_with(' '))
        badSwitch.pop_back();
    return badSwitch;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    // The system hands a command line over up to its first NUL.
    const Text line = Text(reinterpret_cast<const char*>(bytes), size).c_str();
    const Switches switches = ReadSwitches(line);
    Require(switches.silent == HasSilentSwitch(std::wstring(line.begin(), line.end()).c_str()));
    Require(!switches.badSwitch ||
            WithoutQuotes(line).find(WithoutQuotes(ShownPart(*switches.badSwitch))) != Text::npos);
    Require(switches.badSwitch || switches.destination.empty() ||
            IsAbsolutePath(switches.destination));

    const UninstallerCommand command = ReadUninstallerCommand(line);
    Require(command.journalPath.empty() || command.journalPath[0] != '/');
    Require(!command.switches.testMode || command.switches.badSwitch);
    ReadQuotedAsAWhole(WithoutQuotes(line));
    ShowNoValue(WithoutQuotes(line));
    return 0;
}
