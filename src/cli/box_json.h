// The boxes that came up during a call, for scripts.
#pragma once

#include "cli/call_context.h"
#include "cli/console_ask.h"

namespace quillon::cli {

/// `title`, `text` and, of a question, `answer`.
Json BoxesJson(const ConsoleAsk& ask);

} // namespace quillon::cli
