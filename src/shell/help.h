// What the help menu does without a window of its own.
#pragma once

#include "shell/session.h"

namespace quillon {

/// Opens QN.HLP in the program that the system has for it; reports it where that can't be done.
void ShowHelp(Session& session);

/// Tells what whoever helps the user has to know.
void ShowSupport(Session& session);

} // namespace quillon
