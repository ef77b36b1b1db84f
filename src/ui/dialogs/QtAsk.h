// The user of the desktop program: boxes and dialogs over whatever window is in front.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"
#include "ui/dialogs/host_paths.h"

#include <functional>

class QWidget;

namespace quillon {

class QtAsk : public Ask {
public:
    QtAsk(Host& host, HostPaths paths) : host_(host), paths_(std::move(paths)) {}

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
    std::optional<Text> ChooseDestination(const DestinationQuestion& question) override;
    std::optional<Text> ChooseComponent(const std::vector<Text>& entries) override;

    std::optional<Text> ChooseVariable() override;
    std::optional<Long> ChooseColour(Long current) override;
    std::optional<FontChoice> ChooseFont(const FontChoice& current) override;

    // Status lines belong to the form that shows them, whose own `Ask` takes them.
    void AddStatusLine(const Text&) override {}
    void ShowProgress(std::uint64_t, std::uint64_t) override {}
    void ShowBusyPointer(bool busy) override;
    void ShowStatusText(const Text& text) override;
    void Beep() override;
    void ProcessEvents() override;

    /// Where `ShowStatusText` goes: the status bar of the main window.
    std::function<void(const Text&)> onStatusText;

    // The choices whose forms belong to the file list; a hook that is not set cancels.
    std::function<std::optional<Text>(const DestinationQuestion&, QWidget* parent)>
        onChooseDestination;
    std::function<std::optional<Text>(const std::vector<Text>& entries, QWidget* parent)>
        onChooseComponent;
    std::function<std::optional<Text>(QWidget* parent)> onChooseVariable;

private:
    Host& host_;
    HostPaths paths_;
};

} // namespace quillon
