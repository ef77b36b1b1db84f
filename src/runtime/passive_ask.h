// Progress without questions: what /passive shows.
#pragma once

#include "runtime/silent_ask.h"

namespace quillon {

class PassiveAsk : public SilentAsk {
public:
    explicit PassiveAsk(Ask& window) : window_(window) {}

    void AddStatusLine(const Text& line) override { window_.AddStatusLine(line); }
    void ShowProgress(std::uint64_t done, std::uint64_t total) override
    {
        window_.ShowProgress(done, total);
    }
    void ProcessEvents() override { window_.ProcessEvents(); }

private:
    Ask& window_;
};

} // namespace quillon
