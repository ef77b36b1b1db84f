// Scripts of any content: a script is taken whole or not at all, every fault names a line that
// there is, and every script that is taken comes to its end.
#include "require.h"
#include "runtime/script/script_lines.h"

#include <algorithm>
#include <cstdint>

using namespace quillon;

namespace {

bool IsBranch(const ScriptCommand& command)
{
    return command.word == ScriptWord::If || command.word == ScriptWord::Else;
}

void CheckCommand(const Script& script, std::size_t at)
{
    const ScriptCommand& command = script.commands[at];
    Require(command.word != ScriptWord::End);
    // Only forwards, and not out of the script.
    if (IsBranch(command))
        Require(command.next > at && command.next <= script.commands.size());
    Require(at == 0 || script.commands[at - 1].line < command.line);
    if (command.word == ScriptWord::If && command.test == ScriptTest::Registry)
        Require(!ReadRegistryPlace(command.arguments[0]).reason);
    if (command.word == ScriptWord::Registry)
        Require(!ReadRegistryLine(command.arguments[0]).reason);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const Text text(reinterpret_cast<const char*>(bytes), size);
    const Script script = ReadScript(text);
    if (script.fault) {
        Require(script.commands.empty());
        Require(script.fault->line >= 1 && script.fault->line <= int(SplitLines(text).size()));
    }
    for (std::size_t at = 0; at < script.commands.size(); ++at)
        CheckCommand(script, at);

    // A text is one value once it stands in quotation marks.
    if (std::ranges::none_of(text, [](char c) { return c == '\r' || c == '\n'; })) {
        const Script quoted = ReadScript("LOG \"" + ReplaceAll(text, "\"", "\"\"") + "\"");
        Require(quoted.commands.size() == 1 && quoted.commands[0].arguments[0] == text);
    }
    return 0;
}
