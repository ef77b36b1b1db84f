// The user of a running Create: boxes go to the real one, status lines and progress to the form,
// and pending events are handled from time to time, so that the single thread keeps the window
// responsive.
#pragma once

#include "platform/ask.h"

#include <QElapsedTimer>
#include <functional>

namespace quillon {

class CreateAsk : public Ask {
public:
    /// Where lines and progress are shown.
    struct Shown {
        std::function<void(const std::vector<Text>& lines)> addLines;
        std::function<void()> clearLines;
        std::function<void(std::uint64_t done, std::uint64_t total)> showProgress;
    };

    CreateAsk(Ask& user, Shown shown) : user_(user), shown_(std::move(shown)) { since_.start(); }

    void Inform(const Text& title, const Text& text) override;
    void Warn(const Text& title, const Text& text) override;
    void Critical(const Text& title, const Text& text) override;
    bool YesNo(const Text& title, const Text& text, Stops stops) override;
    bool OkCancel(const Text& title, const Text& text) override;
    Answer YesNoCancel(const Text& title, const Text& text) override;

    std::optional<Text> OpenFile(const FileQuestion& question) override;
    std::vector<Text> OpenFiles(const FileQuestion& question) override;
    std::optional<Text> SaveFile(const FileQuestion& question) override;
    std::optional<Text> SelectDir(const Text& text, const Text& folder) override;
    std::optional<Text> XInputBox(const Text& title, const Text& prompt) override;

    void AddStatusLine(const Text& line) override;
    void ClearStatusLines() override;
    void ShowProgress(std::uint64_t done, std::uint64_t total) override;
    void ShowBusyPointer(bool busy) override { user_.ShowBusyPointer(busy); }
    void ShowStatusText(const Text& text) override { user_.ShowStatusText(text); }
    void Beep() override { user_.Beep(); }
    void ProcessEvents() override;

    /// Shows the lines that are still held back.
    void Flush();

private:
    /// The real user; all lines are shown before a box comes up.
    Ask& User();

    Ask& user_;
    Shown shown_;
    // With many thousand files, painting each line at once would take most of the time.
    std::vector<Text> waiting_;
    QElapsedTimer since_;
};

} // namespace quillon
