// The .NET Framework that a project asks for.
#pragma once

#include "platform/ask.h"
#include "project/records.h"
#include "runtime/log/action_log.h"
#include "runtime/target.h"

namespace quillon {

struct NetVersion {
    int major = 1;
    int minor = 0;

    auto operator<=>(const NetVersion&) const = default;
};

/// The newest one that the registry has.
std::optional<NetVersion> InstalledNetFramework(const Target& target);

struct NetTest {
    const section::NET& wanted;
    const Target& target;
    Ask& ask;
    ActionLog& log;
    const LanguageTexts& texts;
    Text title;         // of the setup's boxes
    bool mayAsk = true; // otherwise a warning is logged alone
};

/// Throws `SetupFailure` where the project stops without it, or the user says no.
void CheckNetFramework(const NetTest& test);

} // namespace quillon
