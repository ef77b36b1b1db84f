#include "cli/console_ask.h"

#include <ostream>

namespace quillon::cli {

void ConsoleAsk::Show(const Text& title, const Text& text, std::optional<bool> answer)
{
    // What was said before the box precedes it, also where both outputs are one file.
    if (out_)
        out_->flush();
    err_ << title << ": " << text << "\n" << std::flush;
    boxes.push_back({title, text, answer});
}

bool ConsoleAsk::YesNo(const Text& title, const Text& text, Stops stops)
{
    const bool yesStops = stops == Stops::OnYes;
    const bool answer = answers_ == Answers::Decline ? yesStops : !yesStops;
    Show(title, text, answer);
    return answer;
}

bool ConsoleAsk::OkCancel(const Text& title, const Text& text)
{
    const bool answer = answers_ == Answers::Accept;
    Show(title, text, answer);
    return answer;
}

Answer ConsoleAsk::YesNoCancel(const Text& title, const Text& text)
{
    const bool goesOn = answers_ == Answers::Accept;
    Show(title, text, goesOn);
    return goesOn ? Answer::Yes : Answer::Cancel;
}

void ConsoleAsk::AddStatusLine(const Text& line)
{
    statusLines.push_back(line);
    if (out_)
        *out_ << line << "\n" << std::flush;
}

} // namespace quillon::cli
