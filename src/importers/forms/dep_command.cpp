#include "importers/forms/dep_command.h"

#include "importers/add_dep_file.h"
#include "shell/moved_rows.h"

namespace quillon {

void AddDepFileInWindow(Session& session, MainWindow& window)
{
    const auto places =
        AddDepFileCommand(ListWork{session.project, session.state, session.host, session.ask},
                          session.LastDepFileDir);
    if (places)
        ShowMovedRows(window, *places);
}

} // namespace quillon
