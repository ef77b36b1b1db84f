// The progress of a long step, shown while it goes on.
#pragma once

#include "platform/ask.h"

#include <cstdint>

namespace quillon {

/// Shows progress from time to time, not for each of many thousand small files.
class ProgressDisplay {
public:
    explicit ProgressDisplay(Ask& ask) : ask_(ask) {}
    ~ProgressDisplay() { ask_.ShowProgress(0, 0); }
    ProgressDisplay(const ProgressDisplay&) = delete;
    ProgressDisplay& operator=(const ProgressDisplay&) = delete;

    void Show(std::uint64_t done, std::uint64_t total)
    {
        ask_.ProcessEvents();
        if (total == 0 || (done < next_ && done > last_ && done < total))
            return;
        last_ = done;
        next_ = done + total / kSteps;
        ask_.ShowProgress(done, total);
    }

private:
    static constexpr std::uint64_t kSteps = 200;

    Ask& ask_;
    std::uint64_t last_ = 0;
    std::uint64_t next_ = 0;
};

} // namespace quillon
