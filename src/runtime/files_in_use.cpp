#include "runtime/files_in_use.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::size_t kMaxShown = 10; // a box has no room for more

std::vector<Text> HeldFiles(const FileUsers& users, const std::vector<Text>& paths)
{
    std::vector<Text> held;
    for (const Text& path : paths)
        if (users.IsHeld(path))
            held.push_back(path);
    return held;
}

Text BoxText(const Text& heading, const std::vector<Text>& names, const Text& question)
{
    const Text lineBreak(kLineBreak);
    Text text = heading + lineBreak + lineBreak;
    for (std::size_t i = 0; i < std::min(names.size(), kMaxShown); ++i)
        text += names[i] + lineBreak;
    if (names.size() > kMaxShown)
        text += "..." + lineBreak;
    return text + lineBreak + question;
}

void LogAll(ActionLog& log, Message message, const std::vector<Text>& names)
{
    for (const Text& name : names)
        log.Line(message, name);
}

// Under /NOCANCEL there is nothing to cancel here either.
Answer AskUser(const InUseInput& input, const Text& text)
{
    if (input.switches.canCancel)
        return input.ask.YesNoCancel(input.title, text);
    return input.ask.YesNo(input.title, text, Ask::Stops::OnNo) ? Answer::Yes : Answer::No;
}

bool Close(const InUseInput& input)
{
    input.log.Line(Message::LogClosesPrograms);
    const bool isDone = input.users->CloseThem();
    if (!isDone)
        input.log.Line(Message::LogProgramsRunOn);
    return isDone;
}

} // namespace

bool FreeFiles(const InUseInput& input, const std::vector<Text>& paths)
{
    const auto wish = input.switches.closeApplications;
    if (input.users == nullptr || wish == CloseApplications::Never)
        return true;
    const LanguageTexts& texts = input.texts;
    for (;;) {
        const std::vector<Text> held = HeldFiles(*input.users, paths);
        if (held.empty())
            return true;
        LogAll(input.log, Message::LogInUse, held);
        const std::vector<Text> programs = input.users->ProgramsHolding(held);
        LogAll(input.log, Message::LogUsesFiles, programs);
        if (wish == CloseApplications::Always) {
            if (!programs.empty())
                Close(input);
            return true;
        }
        if (!MayAsk(input.switches))
            return true;
        const Text text =
            programs.empty()
                ? BoxText(texts[Message::InUseFiles], held, texts[Message::InUseTryAgain])
                : BoxText(texts[Message::InUsePrograms], programs, texts[Message::InUseClose]);
        const Answer answer = AskUser(input, text);
        if (answer != Answer::Yes)
            return answer == Answer::No;
        // A program that is still running is named once more.
        if (!programs.empty())
            Close(input);
    }
}

} // namespace quillon
