// Command lines of any content, for the setup, its starter and the uninstaller: the starter is
// silent exactly when the setup is, and a switch that is quoted as a whole means what it says.
#include "helpers/drive_path.h"
#include "require.h"
#include "runtime/switch_words.h"
#include "runtime/switches.h"

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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    // The system hands a command line over up to its first NUL.
    const Text line = Text(reinterpret_cast<const char*>(bytes), size).c_str();
    const Switches switches = ReadSwitches(line);
    Require(switches.silent == HasSilentSwitch(std::wstring(line.begin(), line.end()).c_str()));
    Require(!switches.badSwitch ||
            WithoutQuotes(line).find(WithoutQuotes(*switches.badSwitch)) != Text::npos);
    Require(switches.badSwitch || switches.destination.empty() ||
            IsAbsolutePath(switches.destination));

    const UninstallerCommand command = ReadUninstallerCommand(line);
    Require(command.journalPath.empty() || command.journalPath[0] != '/');
    Require(!command.switches.testMode || command.switches.badSwitch);
    ReadQuotedAsAWhole(WithoutQuotes(line));
    return 0;
}
