// The forms that the user of the desktop program is asked with in the middle of a command.
#pragma once

namespace quillon {

class QtAsk;
struct Session;

void ConnectFileListForms(QtAsk& ask, Session& session);

} // namespace quillon
