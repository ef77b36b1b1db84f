// A user whose answers are laid ready. Every box that comes up must be the next one of the script,
// by its title and, where the script tells one, by its text; a box that nobody expected fails the
// test, and so does one that never came.
#pragma once

#include "platform/ask.h"

#include <deque>
#include <string>
#include <vector>

namespace quillon::test {

enum class BoxKind { Inform, Warn, Critical, YesNo, OkCancel, YesNoCancel };

/// What a box is expected to be and what the user answers. An empty `text` expects any text. OK on
/// an OK/Cancel box is `Answer::Yes`.
struct ExpectedBox {
    BoxKind kind;
    Text title;
    Text text = {};
    Answer answer = Answer::Yes;
};

class ScriptedAsk : public Ask {
public:
    explicit ScriptedAsk(std::deque<ExpectedBox> script = {});
    ~ScriptedAsk() override;
    ScriptedAsk(const ScriptedAsk&) = delete;
    ScriptedAsk& operator=(const ScriptedAsk&) = delete;

    void Inform(const Text& title, const Text& text) override;
    void Warn(const Text& title, const Text& text) override;
    void Critical(const Text& title, const Text& text) override;
    bool YesNo(const Text& title, const Text& text, Stops stops) override;
    bool OkCancel(const Text& title, const Text& text) override;
    Answer YesNoCancel(const Text& title, const Text& text) override;
    void AddStatusLine(const Text& line) override { statusLines.push_back(line); }
    void ClearStatusLines() override { statusLines.clear(); }
    void ShowProgress(std::uint64_t done, std::uint64_t total) override;
    void ShowBusyPointer(bool busy) override { busyPointer = busy; }
    void Beep() override { ++beeps; }
    void YieldToEvents() override {}

    /// Everything that was shown, for a test that looks afterwards.
    std::vector<ExpectedBox> shown;
    // For each Yes/No question, which answer it said to end the command.
    std::vector<Stops> stops;
    std::vector<Text> statusLines;
    int beeps = 0;
    bool busyPointer = false;
    std::uint64_t progressDone = 0;
    std::uint64_t progressTotal = 0;

private:
    Answer Next(BoxKind kind, const Text& title, const Text& text);

    std::deque<ExpectedBox> script_;
};

} // namespace quillon::test
