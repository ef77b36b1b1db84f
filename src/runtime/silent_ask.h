// A user who sees nothing, as under /S. Questions get the answer that changes least.
#pragma once

#include "platform/ask.h"

namespace quillon {

class SilentAsk : public Ask {
public:
    void Inform(const Text&, const Text&) override {}
    void Warn(const Text&, const Text&) override {}
    void Critical(const Text&, const Text&) override {}
    bool YesNo(const Text&, const Text&, Stops stops) override { return stops == Stops::OnYes; }
    bool OkCancel(const Text&, const Text&) override { return false; }
    Answer YesNoCancel(const Text&, const Text&) override { return Answer::Cancel; }
    void AddStatusLine(const Text&) override {}
    void ShowProgress(std::uint64_t, std::uint64_t) override {}
    void ShowBusyPointer(bool) override {}
    void Beep() override {}
    void ProcessEvents() override {}
};

} // namespace quillon
