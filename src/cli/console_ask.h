// The user of a program without a window: boxes are printed and answered from the switches.
#pragma once

#include "platform/ask.h"

#include <iosfwd>
#include <optional>
#include <vector>

namespace quillon::cli {

class ConsoleAsk : public Ask {
public:
    // What a question is answered with.
    enum class Answers { Decline, Accept };

    struct Box {
        Text title;
        Text text;
        std::optional<bool> answer; // of a question: Yes, OK
    };

    /// Status lines go to `out` as they come, unless it is null; boxes to `err` as "Title: text".
    ConsoleAsk(std::ostream* out, std::ostream& err, Answers answers = Answers::Decline)
        : out_(out), err_(err), answers_(answers)
    {
    }

    void Inform(const Text& title, const Text& text) override { Show(title, text, {}); }
    void Warn(const Text& title, const Text& text) override { Show(title, text, {}); }
    void Critical(const Text& title, const Text& text) override { Show(title, text, {}); }
    bool YesNo(const Text& title, const Text& text, Stops stops) override;
    bool OkCancel(const Text& title, const Text& text) override;
    Answer YesNoCancel(const Text& title, const Text& text) override;

    void AddStatusLine(const Text& line) override;
    void ShowProgress(std::uint64_t, std::uint64_t) override {}
    void ShowBusyPointer(bool) override {}
    void Beep() override {}
    void ProcessEvents() override {}

    std::vector<Text> statusLines;
    std::vector<Box> boxes;

private:
    void Show(const Text& title, const Text& text, std::optional<bool> answer);

    std::ostream* out_;
    std::ostream& err_;
    Answers answers_;
};

} // namespace quillon::cli
