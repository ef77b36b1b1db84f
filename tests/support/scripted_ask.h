// A user with prepared answers. Every box that comes up must be the next one of the script, by its
// title and, where the script has one, by its text; an unexpected box fails the test, and so does
// one that never came.
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

    /// One more box at the end of the script, for a user who is made before the test begins.
    void Expect(ExpectedBox box) { script_.push_back(std::move(box)); }

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
    void ShowStatusText(const Text& text) override { statusTexts.push_back(text); }
    void Beep() override { ++beeps; }
    std::optional<Text> OpenFile(const FileQuestion& question) override;
    std::vector<Text> OpenFiles(const FileQuestion& question) override;
    std::optional<Text> SaveFile(const FileQuestion& question) override;
    std::optional<Text> SelectDir(const Text& text, const Text& folder) override;
    std::optional<Text> XInputBox(const Text& title, const Text& prompt) override;
    std::optional<Text> ChooseDestination(const DestinationQuestion& question) override;
    std::optional<Text> ChooseComponent(const std::vector<Text>& entries) override;
    std::optional<Text> ChooseVariable() override;
    std::optional<Long> ChooseColour(Long current) override;
    std::optional<FontChoice> ChooseFont(const FontChoice& current) override;

    // What the next choices of a colour and of a font give, in order; one beyond them fails the
    // test, and an empty one is a cancelled dialog. What each was opened with comes after.
    std::deque<std::optional<Long>> colours;
    std::deque<std::optional<FontChoice>> fonts;
    std::vector<Long> shownColours;
    std::vector<FontChoice> shownFonts;

    /// What the next choices give, in order; a choice beyond them fails the test. `chosen` empty is
    /// a cancelled dialog.
    struct Choice {
        std::vector<Text> chosen;
    };
    std::deque<Choice> choices;
    // What the choices were opened with: title, folder, name and filter of a file dialog; text and
    // folder of SelectDir; title and prompt (as the filter) of XInputBox; "ChooseDestination", its
    // folder and its option button (as the filter); "ChooseComponent" and its entries, with "|"
    // between them (as the filter); "ChooseVariable".
    std::vector<FileQuestion> questions;
    void ProcessEvents() override {}

    /// Everything that was shown, for a test that looks afterwards.
    std::vector<ExpectedBox> shown;
    // For each Yes/No question, which answer it said to end the command.
    std::vector<Stops> stops;
    std::vector<Text> statusLines;
    std::vector<Text> statusTexts;
    int beeps = 0;
    bool busyPointer = false;
    std::uint64_t progressDone = 0;
    std::uint64_t progressTotal = 0;

private:
    Answer Next(BoxKind kind, const Text& title, const Text& text);

    std::vector<Text> NextChoice(const FileQuestion& question);
    std::optional<Text> NextOneChoice(const FileQuestion& question);

    std::deque<ExpectedBox> script_;
};

} // namespace quillon::test
