#include "builder/forms/CreateAsk.h"

#include <QtWidgets>

namespace quillon {

namespace {

// Often enough for a smooth display, seldom enough not to slow the packing down.
constexpr qint64 kMillisecondsBetweenEvents = 30;

} // namespace

Ask& CreateAsk::User()
{
    Flush();
    return user_;
}

void CreateAsk::Inform(const Text& title, const Text& text)
{
    User().Inform(title, text);
}

void CreateAsk::Warn(const Text& title, const Text& text)
{
    User().Warn(title, text);
}

void CreateAsk::Critical(const Text& title, const Text& text)
{
    User().Critical(title, text);
}

bool CreateAsk::YesNo(const Text& title, const Text& text, Stops stops)
{
    return User().YesNo(title, text, stops);
}

bool CreateAsk::OkCancel(const Text& title, const Text& text)
{
    return User().OkCancel(title, text);
}

Answer CreateAsk::YesNoCancel(const Text& title, const Text& text)
{
    return User().YesNoCancel(title, text);
}

std::optional<Text> CreateAsk::OpenFile(const FileQuestion& question)
{
    return User().OpenFile(question);
}

std::vector<Text> CreateAsk::OpenFiles(const FileQuestion& question)
{
    return User().OpenFiles(question);
}

std::optional<Text> CreateAsk::SaveFile(const FileQuestion& question)
{
    return User().SaveFile(question);
}

std::optional<Text> CreateAsk::SelectDir(const Text& text, const Text& folder)
{
    return User().SelectDir(text, folder);
}

std::optional<Text> CreateAsk::XInputBox(const Text& title, const Text& prompt)
{
    return User().XInputBox(title, prompt);
}

void CreateAsk::AddStatusLine(const Text& line)
{
    waiting_.push_back(line);
    ProcessEvents();
}

void CreateAsk::ClearStatusLines()
{
    waiting_.clear();
    shown_.clearLines();
}

void CreateAsk::ShowProgress(std::uint64_t done, std::uint64_t total)
{
    shown_.showProgress(done, total);
    ProcessEvents();
}

void CreateAsk::ProcessEvents()
{
    if (since_.elapsed() < kMillisecondsBetweenEvents)
        return;
    Flush();
    user_.ProcessEvents();
    since_.restart();
}

void CreateAsk::Flush()
{
    if (!waiting_.empty())
        shown_.addLines(std::exchange(waiting_, {}));
}

} // namespace quillon
