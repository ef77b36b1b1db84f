#include "support/scripted_ask.h"

#include <gtest/gtest.h>

#include <utility>

namespace quillon::test {

ScriptedAsk::ScriptedAsk(std::deque<ExpectedBox> script) : script_(std::move(script)) {}

ScriptedAsk::~ScriptedAsk()
{
    for (const ExpectedBox& box : script_)
        ADD_FAILURE() << "the box \"" << box.title << "\" never came up";
    EXPECT_TRUE(choices.empty()) << "there are choices that nobody asked for";
}

void ScriptedAsk::Inform(const Text& title, const Text& text)
{
    Next(BoxKind::Inform, title, text);
}

void ScriptedAsk::Warn(const Text& title, const Text& text)
{
    Next(BoxKind::Warn, title, text);
}

void ScriptedAsk::Critical(const Text& title, const Text& text)
{
    Next(BoxKind::Critical, title, text);
}

bool ScriptedAsk::YesNo(const Text& title, const Text& text, Stops stopsOn)
{
    stops.push_back(stopsOn);
    return Next(BoxKind::YesNo, title, text) == Answer::Yes;
}

bool ScriptedAsk::OkCancel(const Text& title, const Text& text)
{
    return Next(BoxKind::OkCancel, title, text) == Answer::Yes;
}

Answer ScriptedAsk::YesNoCancel(const Text& title, const Text& text)
{
    return Next(BoxKind::YesNoCancel, title, text);
}

void ScriptedAsk::ShowProgress(std::uint64_t done, std::uint64_t total)
{
    progressDone = done;
    progressTotal = total;
}

std::optional<Text> ScriptedAsk::OpenFile(const FileQuestion& question)
{
    return NextOneChoice(question);
}

std::vector<Text> ScriptedAsk::OpenFiles(const FileQuestion& question)
{
    return NextChoice(question);
}

std::optional<Text> ScriptedAsk::SaveFile(const FileQuestion& question)
{
    return NextOneChoice(question);
}

std::optional<Text> ScriptedAsk::SelectDir(const Text& text, const Text& folder)
{
    return NextOneChoice({.title = text, .folder = folder});
}

std::optional<Text> ScriptedAsk::XInputBox(const Text& title, const Text& prompt)
{
    return NextOneChoice({.title = title, .filter = prompt});
}

std::optional<Text> ScriptedAsk::ChooseDestination(const DestinationQuestion& question)
{
    constexpr const char* kOptionButtons[] = {"oUserDirectory", "oSystemDirectory",
                                              "oWindowsDirectory"};
    return NextOneChoice({.title = "ChooseDestination",
                          .folder = question.folder,
                          .filter = kOptionButtons[static_cast<int>(question.place)]});
}

std::optional<Text> ScriptedAsk::ChooseComponent(const std::vector<Text>& entries)
{
    Text filter;
    for (const Text& entry : entries)
        filter += (filter.empty() ? "" : "|") + entry;
    return NextOneChoice({.title = "ChooseComponent", .filter = filter});
}

std::optional<Text> ScriptedAsk::ChooseVariable()
{
    return NextOneChoice({.title = "ChooseVariable"});
}

namespace {

template <class Value>
std::optional<Value> TakeNext(std::deque<std::optional<Value>>& answers, const char* what)
{
    if (answers.empty()) {
        ADD_FAILURE() << "nobody expected the choice of a " << what;
        return {};
    }
    const std::optional<Value> answer = answers.front();
    answers.pop_front();
    return answer;
}

} // namespace

std::optional<Long> ScriptedAsk::ChooseColour(Long current)
{
    shownColours.push_back(current);
    return TakeNext(colours, "colour");
}

std::optional<FontChoice> ScriptedAsk::ChooseFont(const FontChoice& current)
{
    shownFonts.push_back(current);
    return TakeNext(fonts, "font");
}

std::vector<Text> ScriptedAsk::NextChoice(const FileQuestion& question)
{
    questions.push_back(question);
    if (choices.empty()) {
        ADD_FAILURE() << "nobody expected the choice \"" << question.title << "\"";
        return {};
    }
    const Choice choice = choices.front();
    choices.pop_front();
    return choice.chosen;
}

std::optional<Text> ScriptedAsk::NextOneChoice(const FileQuestion& question)
{
    const std::vector<Text> chosen = NextChoice(question);
    return chosen.empty() ? std::nullopt : std::optional(chosen.front());
}

Answer ScriptedAsk::Next(BoxKind kind, const Text& title, const Text& text)
{
    shown.push_back({kind, title, text});
    if (script_.empty()) {
        ADD_FAILURE() << "nobody expected the box \"" << title << "\": " << text;
        return Answer::Cancel;
    }
    const ExpectedBox expected = script_.front();
    script_.pop_front();
    EXPECT_EQ(kind, expected.kind) << title;
    EXPECT_EQ(title, expected.title);
    if (!expected.text.empty()) {
        EXPECT_EQ(text, expected.text);
    }
    return expected.answer;
}

} // namespace quillon::test
