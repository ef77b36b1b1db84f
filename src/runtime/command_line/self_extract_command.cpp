#include "runtime/command_line/self_extract_command.h"

#include "runtime/command_line/switch_words.h"

namespace quillon {

namespace {

/// The switch without quotation marks round it or its value.
Text Bare(std::string_view word)
{
    Text bare;
    for (const char c : word)
        if (c != '"')
            bare += c;
    return bare;
}

bool TakeExtract(const Text& bare, SelfExtractCommand& command)
{
    constexpr std::string_view kName = "EXTRACT";
    const std::size_t end = 1 + kName.size();
    if (!EqualIgnoreCase(bare.substr(1, kName.size()), kName) ||
        (bare.size() > end && bare[end] != ':' && bare[end] != '='))
        return false;
    command.extractTo = bare.size() > end ? bare.substr(end + 1) : Text();
    return true;
}

bool TakeOwnSwitch(std::string_view word, SelfExtractCommand& command)
{
    const Text bare = Bare(word);
    if (bare.size() < 2 || !IsSwitchMark(bare[0]))
        return false;
    const std::string_view name = std::string_view(bare).substr(1);
    if (name == "?")
        command.wantsHelp = true;
    else if (EqualIgnoreCase(name, "version"))
        command.wantsVersion = true;
    else if (EqualIgnoreCase(bare, kElevatedInstanceSwitch))
        command.isElevatedInstance = true;
    else
        return TakeExtract(bare, command);
    return true;
}

} // namespace

SelfExtractCommand ReadSelfExtractCommand(const Text& commandLine)
{
    SelfExtractCommand command;
    command.isSilent = HasSilentSwitch(commandLine.c_str());
    const char* word = SkipSwitchBlanks(commandLine.c_str());
    while (*word != 0) {
        const char* const end = EndOfSwitch(word);
        const std::string_view text(word, static_cast<std::size_t>(end - word));
        if (!TakeOwnSwitch(text, command))
            command.forSetup.append(command.forSetup.empty() ? "" : " ").append(text);
        word = SkipSwitchBlanks(end);
    }
    return command;
}

} // namespace quillon
