// What the help menu does without a window of its own.
#pragma once

#include "shell/help_pages.h"
#include "shell/session.h"

namespace quillon {

/// Shows QN.HLP at the page of that command, in the session's help window; a help file of another
/// kind in the program that the system has for it. Reports it where neither can be done.
void ShowHelp(Session& session, const HelpRequest& request = {});

/// Says what the user has to give to the support: version, settings, project file.
void ShowSupport(Session& session);

} // namespace quillon
